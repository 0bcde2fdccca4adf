#pragma once
// What is wrong with a "get_status" answer, for the log: the poller passes
// every answer on as it is (members of the wrong type read as their
// defaults), and tells once in the log when the service starts answering
// with members it cannot read.

#include <json/value.h>

#include <string>

namespace status_answer {

// Empty when the answer's `status` is an integer, its `content` an object
// and, inside it, `connected` a bool and `error` an object (when present);
// else the first member that is not, with the type it has, for example
// "status is a string".
std::string problem(const Json::Value& response);

}  // namespace status_answer
