#include "ui-agent/core/json-meta-type.h"

namespace {

const std::shared_ptr<const Json::Value>& nullValue() {
  static const std::shared_ptr<const Json::Value> null = std::make_shared<const Json::Value>();
  return null;
}

}  // namespace

SharedJson::SharedJson() : value_(nullValue()) {}

SharedJson::SharedJson(Json::Value value) : value_(std::make_shared<const Json::Value>(std::move(value))) {}

SharedJson::SharedJson(const SharedJson& owner, const Json::Value& part) : value_(owner.value_, &part) {}
