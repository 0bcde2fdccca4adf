// nimbra-backup-notifier: shows the agent's notifications on the desktop and
// opens the agent when one of them is chosen.
#include "notifier/notifier-main.h"

int main(int argc, char** argv) {
  return notifier::notifier_main(argc, argv);
}
