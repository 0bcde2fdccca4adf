#pragma once
// The command line of nimbra-service-sim: serve, send, notify, --help.

#include <string>
#include <vector>

namespace sim {

// The whole --help text.
std::string help_text();

// Each returns the process exit code. `args` are the arguments after the
// subcommand name.
int run_serve(int argc, char** argv, const std::vector<std::string>& args);
int run_send(const std::vector<std::string>& args);
int run_notify(const std::vector<std::string>& args);

// The working space: $NIMBRA_WORKING_SPACE, else the machine-wide default.
std::string working_space_folder();

// Entry point used by main().
int run_cli(int argc, char** argv);

}  // namespace sim
