#pragma once
// Json::Value as a Qt meta-type, so that requests, answers and notifications
// can travel through queued signal connections between threads.
//
// SharedJson is one parsed value shared read-only by everyone who receives
// it: the service's answers and the status content travel the bus as
// SharedJson, so that a queued connection per listener, the status store and
// the status-change signal copy a pointer, never the tree. It converts
// implicitly to `const Json::Value&`, so slots keep taking that type.

#include <json/value.h>

#include <QMetaType>

#include <memory>

class SharedJson {
 public:
  SharedJson();  // a null value
  // Takes the value over (implicit, so that a Json::Value can be emitted).
  SharedJson(Json::Value value);  // NOLINT(google-explicit-constructor)
  // `part` (a member of `owner`'s value, at any depth), kept alive by owner's
  // value without a copy.
  SharedJson(const SharedJson& owner, const Json::Value& part);

  const Json::Value& value() const { return *value_; }
  operator const Json::Value&() const { return *value_; }  // NOLINT(google-explicit-constructor)
  const Json::Value* operator->() const { return value_.get(); }
  // True when both hold the very same tree (not merely equal ones).
  bool sharesWith(const SharedJson& other) const { return value_ == other.value_; }

 private:
  std::shared_ptr<const Json::Value> value_;
};

Q_DECLARE_METATYPE(Json::Value)
Q_DECLARE_METATYPE(SharedJson)
