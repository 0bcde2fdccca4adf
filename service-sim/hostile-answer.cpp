#include "service-sim/hostile-answer.h"

namespace sim {

Json::Value make_hostile(const Json::Value& answer) {
  switch (answer.type()) {
    case Json::intValue:
    case Json::uintValue:
    case Json::realValue:
      return Json::Value(answer.asString());  // safe: the value is numeric here
    case Json::booleanValue:
      return Json::Value(answer.asBool() ? "true" : "false");
    case Json::stringValue: {
      const std::string s = answer.asString();
      if (s.empty()) return Json::Value(0);
      Json::Value wrapped(Json::arrayValue);
      wrapped.append(s);
      return wrapped;
    }
    case Json::arrayValue: {
      Json::Value out(Json::arrayValue);
      for (const auto& v : answer) out.append(make_hostile(v));
      return out;
    }
    case Json::objectValue: {
      Json::Value out(Json::objectValue);
      for (const auto& name : answer.getMemberNames()) out[name] = make_hostile(answer[name]);
      return out;
    }
    case Json::nullValue:
      break;
  }
  return Json::Value(Json::objectValue);
}

}  // namespace sim
