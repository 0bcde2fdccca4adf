#pragma once
// The notifier's command line, exactly as the agent builds it:
//
//   nimbra-backup-notifier 1 <site path> <count> {<title> <text> <button> <action type>}...
//
// parse_notifier_args() checks it and returns the elements, or one line that
// says what is wrong (the program prints it and exits 2).

#include <QString>
#include <QStringList>

#include <vector>

namespace notifier {

// The only layout of the arguments the agent writes today.
inline constexpr const char* kArgumentsVersion = "1";

// Exit codes of nimbra-backup-notifier.
enum ExitCode : int {
  kExitShown = 0,         // every notification is on screen (or there was none)
  kExitFailure = 1,       // the program could not run (fork, pipe)
  kExitBadArguments = 2,  // the command line does not have the layout above
  kExitNoService = 3,     // no session bus or no notification service: use balloons
};

struct NotificationElement {
  QString title;
  QString text;
  QString button;
  int action_type = 0;
};

struct NotifierRequest {
  QString site_path;
  std::vector<NotificationElement> elements;
};

struct ParseResult {
  bool ok = false;
  QString error;  // one line, set when !ok
  NotifierRequest request;
};

// `args` are the arguments after the program name.
ParseResult parse_notifier_args(const QStringList& args);

// A whole decimal number in 32 bits: optional sign, digits only, no blanks.
bool parse_decimal_int(const QString& text, int& out);

}  // namespace notifier
