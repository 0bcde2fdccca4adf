#pragma once
// Ends the event loop cleanly on SIGINT / SIGTERM (POSIX, through a self-pipe
// watched by a QSocketNotifier) or on Ctrl+C / console close (Windows).

class QCoreApplication;

namespace sim {

// False when the handlers cannot be installed.
bool install_quit_handlers(QCoreApplication& app);

}  // namespace sim
