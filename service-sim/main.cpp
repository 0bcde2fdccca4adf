// nimbra-service-sim: the simulated backup service (see --help).
#include "service-sim/sim-cli.h"

int main(int argc, char** argv) {
  return sim::run_cli(argc, argv);
}
