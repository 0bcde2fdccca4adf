#pragma once
// The hostile service: the same answer with members of the wrong types
// (numbers as strings, strings as numbers, bools as numbers, objects inside
// arrays), so the agent's type-tolerant reading is exercised. The pipe
// service applies it to every answer when the scenario asks for it.

#include <json/value.h>

namespace sim {

Json::Value make_hostile(const Json::Value& answer);

}  // namespace sim
