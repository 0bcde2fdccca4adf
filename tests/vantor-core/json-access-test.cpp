// Type-tolerant JSON reading: whatever the peer sends, no accessor throws and
// a member of the wrong type reads as the fallback.
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

#include "json-access.h"

namespace {

Json::Value parsed(const std::string& text) {
  Json::Value v;
  std::string error;
  EXPECT_TRUE(jsonx::parse(text, v, &error)) << text << ": " << error;
  return v;
}

// Every member value the tables below feed to the accessors.
const char kDoc[] = R"({
  "int": 42, "neg": -7, "zero": 0, "big": 9223372036854775807, "huge": 18446744073709551615,
  "int32max": 2147483647, "int32over": 2147483648, "uint32max": 4294967295, "uint32over": 4294967296,
  "int32min": -2147483648, "int32under": -2147483649,
  "whole": 12.0, "frac": 1.5, "exp": 1e300, "negwhole": -3.0,
  "str": "17", "empty": "", "t": true, "f": false, "null": null,
  "arr": [1, 2], "obj": {"a": 1}
})";

struct IntCase {
  const char* key;
  bool ok;
  std::int64_t value;
};

void PrintTo(const IntCase& c, std::ostream* os) {
  *os << c.key;
}

class Int64Test : public ::testing::TestWithParam<IntCase> {};
TEST_P(Int64Test, ReadsOnlyIntegralNumbersInRange) {
  const Json::Value doc = parsed(kDoc);
  EXPECT_EQ(GetParam().ok ? GetParam().value : -99, jsonx::get_int64(doc, GetParam().key, -99));
}
INSTANTIATE_TEST_SUITE_P(
    Members, Int64Test,
    ::testing::Values(IntCase{"int", true, 42}, IntCase{"neg", true, -7}, IntCase{"zero", true, 0},
                      IntCase{"big", true, std::numeric_limits<std::int64_t>::max()},
                      IntCase{"huge", false, 0}, IntCase{"whole", true, 12}, IntCase{"negwhole", true, -3},
                      IntCase{"frac", false, 0}, IntCase{"exp", false, 0}, IntCase{"str", false, 0},
                      IntCase{"empty", false, 0}, IntCase{"t", false, 0}, IntCase{"f", false, 0},
                      IntCase{"null", false, 0}, IntCase{"arr", false, 0}, IntCase{"obj", false, 0},
                      IntCase{"missing", false, 0}));

class Int32Test : public ::testing::TestWithParam<IntCase> {};
TEST_P(Int32Test, RefusesValuesOutsideInt32) {
  const Json::Value doc = parsed(kDoc);
  EXPECT_EQ(GetParam().ok ? GetParam().value : -99, jsonx::get_int32(doc, GetParam().key, -99));
}
INSTANTIATE_TEST_SUITE_P(Members, Int32Test,
                         ::testing::Values(IntCase{"int32max", true, 2147483647},
                                           IntCase{"int32over", false, 0},
                                           IntCase{"int32min", true, -2147483648LL},
                                           IntCase{"int32under", false, 0}, IntCase{"big", false, 0},
                                           IntCase{"neg", true, -7}, IntCase{"str", false, 0},
                                           IntCase{"t", false, 0}));

class UInt32Test : public ::testing::TestWithParam<IntCase> {};
TEST_P(UInt32Test, RefusesNegativeAndTooLarge) {
  const Json::Value doc = parsed(kDoc);
  EXPECT_EQ(GetParam().ok ? static_cast<std::uint32_t>(GetParam().value) : 77u,
            jsonx::get_uint32(doc, GetParam().key, 77u));
}
INSTANTIATE_TEST_SUITE_P(Members, UInt32Test,
                         ::testing::Values(IntCase{"uint32max", true, 4294967295LL},
                                           IntCase{"uint32over", false, 0}, IntCase{"neg", false, 0},
                                           IntCase{"negwhole", false, 0}, IntCase{"zero", true, 0},
                                           IntCase{"whole", true, 12}, IntCase{"frac", false, 0},
                                           IntCase{"obj", false, 0}));

TEST(JsonUInt64, TakesTheWholeUnsignedRangeButNoNegative) {
  const Json::Value doc = parsed(kDoc);
  EXPECT_EQ(std::numeric_limits<std::uint64_t>::max(), jsonx::get_uint64(doc, "huge", 5));
  EXPECT_EQ(9223372036854775807ULL, jsonx::get_uint64(doc, "big", 5));
  EXPECT_EQ(5u, jsonx::get_uint64(doc, "neg", 5));
  EXPECT_EQ(5u, jsonx::get_uint64(doc, "exp", 5));
  EXPECT_EQ(5u, jsonx::get_uint64(doc, "str", 5));
}

TEST(JsonDouble, NumbersOnly) {
  const Json::Value doc = parsed(kDoc);
  EXPECT_DOUBLE_EQ(1.5, jsonx::get_double(doc, "frac", -1));
  EXPECT_DOUBLE_EQ(42.0, jsonx::get_double(doc, "int", -1));
  EXPECT_DOUBLE_EQ(1e300, jsonx::get_double(doc, "exp", -1));
  for (const char* key : {"str", "t", "null", "arr", "obj", "missing"})
    EXPECT_DOUBLE_EQ(-1.0, jsonx::get_double(doc, key, -1)) << key;
}

TEST(JsonBool, OnlyAJsonBoolIsABool) {
  const Json::Value doc = parsed(kDoc);
  EXPECT_TRUE(jsonx::get_bool(doc, "t", false));
  EXPECT_FALSE(jsonx::get_bool(doc, "f", true));
  for (const char* key : {"int", "zero", "str", "empty", "null", "arr", "obj", "missing"}) {
    EXPECT_TRUE(jsonx::get_bool(doc, key, true)) << key;
    EXPECT_FALSE(jsonx::get_bool(doc, key, false)) << key;
  }
}

TEST(JsonString, OnlyAJsonStringIsAString) {
  const Json::Value doc = parsed(kDoc);
  EXPECT_EQ("17", jsonx::get_string(doc, "str", "fb"));
  EXPECT_EQ("", jsonx::get_string(doc, "empty", "fb"));
  for (const char* key : {"int", "t", "null", "arr", "obj", "missing", "frac"})
    EXPECT_EQ("fb", jsonx::get_string(doc, key, "fb")) << key;
}

TEST(JsonContainers, WrongTypesGiveEmptyContainersOfTheAskedKind) {
  const Json::Value doc = parsed(kDoc);
  EXPECT_EQ(2u, jsonx::get_array(doc, "arr").size());
  EXPECT_EQ(1, jsonx::get_int64(jsonx::get_object(doc, "obj"), "a"));
  for (const char* key : {"int", "str", "null", "obj", "missing"}) {
    const Json::Value& a = jsonx::get_array(doc, key);
    EXPECT_TRUE(a.isArray()) << key;
    EXPECT_EQ(0u, a.size()) << key;
  }
  for (const char* key : {"int", "str", "null", "arr", "missing"}) {
    const Json::Value& o = jsonx::get_object(doc, key);
    EXPECT_TRUE(o.isObject()) << key;
    EXPECT_EQ(0u, o.size()) << key;
  }
}

TEST(JsonMember, NeverInsertsAndToleratesNonObjects) {
  Json::Value doc = parsed(kDoc);
  const auto before = doc.size();
  EXPECT_TRUE(jsonx::member(doc, "nothing").isNull());
  EXPECT_FALSE(jsonx::has(doc, "nothing"));
  EXPECT_EQ(before, doc.size());
  EXPECT_TRUE(jsonx::has(doc, "null"));  // present though null
  // Looking into scalars, arrays and null gives null, not an exception.
  for (const Json::Value& v :
       {Json::Value(3), Json::Value("s"), Json::Value(Json::arrayValue), Json::Value()}) {
    EXPECT_TRUE(jsonx::member(v, "a").isNull());
    EXPECT_FALSE(jsonx::has(v, "a"));
    EXPECT_EQ(9, jsonx::get_int64(v, "a", 9));
    EXPECT_EQ(0u, jsonx::get_array(v, "a").size());
  }
  // Chained reads through missing levels stay safe.
  EXPECT_EQ(-1, jsonx::get_int64(jsonx::get_object(jsonx::get_object(doc, "x"), "y"), "z", -1));
  EXPECT_FALSE(jsonx::is_object(Json::Value()));
  EXPECT_TRUE(jsonx::is_object(doc));
}

TEST(JsonParse, GarbageFailsWithoutThrowingAndResetsTheOutput) {
  for (const char* text : {"", "{", "}", "{\"a\":}", "[1,,2]", "nul", "{\"a\":1} trailing", "\xFF\xFE",
                           "{\"a\":1} {\"b\":2}", "{'a':1}"}) {
    Json::Value out(123);
    std::string error;
    EXPECT_FALSE(jsonx::parse(text, out, &error)) << text;
    EXPECT_TRUE(out.isNull()) << text;
    EXPECT_FALSE(error.empty()) << text;
  }
}

TEST(JsonParse, CommentsAreReadButNotKept) {
  Json::Value out;
  ASSERT_TRUE(jsonx::parse("{ // note\n \"a\": 1 /* more */ }", out));
  EXPECT_EQ(1, jsonx::get_int64(out, "a"));
  EXPECT_FALSE(out.hasComment(Json::commentBefore));
}

TEST(JsonParse, PathologicalNestingIsRefusedNotACrash) {
  const std::string deep = std::string(100000, '[') + std::string(100000, ']');
  Json::Value out;
  EXPECT_FALSE(jsonx::parse(deep, out));
  const std::string deep_obj = [] {
    std::string s;
    for (int i = 0; i < 50000; ++i) s += "{\"a\":";
    s += "1";
    s += std::string(50000, '}');
    return s;
  }();
  EXPECT_FALSE(jsonx::parse(deep_obj, out));
}

TEST(JsonCompact, OneLineWithoutBlanks) {
  Json::Value v(Json::objectValue);
  v["b"] = 1;
  v["a"] = "x y";
  v["c"] = Json::Value(Json::arrayValue);
  v["c"].append(true);
  EXPECT_EQ(R"({"a":"x y","b":1,"c":[true]})", jsonx::compact(v));
  EXPECT_EQ("null", jsonx::compact(Json::Value()));
}

}  // namespace
