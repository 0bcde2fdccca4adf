#include "ui-agent/core/status-answer.h"

#include <cmath>

#include "vantor-core/lib/json-access.h"

namespace status_answer {
namespace {

const char* typeName(const Json::Value& v) {
  switch (v.type()) {
    case Json::nullValue:
      return "null";
    case Json::intValue:
    case Json::uintValue:
      return "an integer";
    case Json::realValue:
      return "a fraction";
    case Json::stringValue:
      return "a string";
    case Json::booleanValue:
      return "a bool";
    case Json::arrayValue:
      return "an array";
    case Json::objectValue:
      return "an object";
  }
  return "unknown";
}

// As the accessors read a number: an integer, or a fraction without a
// fractional part.
bool integral(const Json::Value& v) {
  if (v.isIntegral()) return true;
  const double d = jsonx::to_double(v);
  return v.isDouble() && std::trunc(d) == d;
}

std::string is(const char* name, const Json::Value& v) {
  return std::string(name) + " is " + typeName(v);
}

}  // namespace

std::string problem(const Json::Value& response) {
  if (!jsonx::is_object(response)) return is("the answer", response);
  const Json::Value& status = jsonx::member(response, "status");
  if (!jsonx::has(response, "status")) return "status is missing";
  if (!integral(status)) return is("status", status);
  if (!jsonx::has(response, "content")) return "content is missing";
  const Json::Value& content = jsonx::member(response, "content");
  if (!jsonx::is_object(content)) return is("content", content);
  if (jsonx::has(content, "connected") && !jsonx::member(content, "connected").isBool())
    return is("content.connected", jsonx::member(content, "connected"));
  if (jsonx::has(content, "error") && !jsonx::is_object(jsonx::member(content, "error")))
    return is("content.error", jsonx::member(content, "error"));
  return std::string();
}

}  // namespace status_answer
