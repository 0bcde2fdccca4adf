#pragma once
// The whole nimbra-backup-notifier program; main() only calls it.

namespace notifier {

// Exit codes: notifier::ExitCode (notifier-args.h).
int notifier_main(int argc, char** argv);

}  // namespace notifier
