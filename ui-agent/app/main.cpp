#include "ui-agent/app/agent-app.h"

int main(int argc, char** argv) {
  return agent_app::run(argc, argv);
}
