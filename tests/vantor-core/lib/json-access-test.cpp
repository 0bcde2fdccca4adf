// Type-tolerant JSON reading: whatever the peer sends, no accessor throws and
// a member of the wrong type reads as the fallback.
#include <gtest/gtest.h>

#include <ostream>

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "vantor-core/lib/json-access.h"

namespace {

Json::Value parsed(const std::string& text) {
  Json::Value v;
  std::string error;
  EXPECT_TRUE(jsonx::parse(text, v, &error)) << text << ": " << error;
  return v;
}

// Every member value the tests below feed to the accessors.
const char kDoc[] = R"({
  "int": 42, "neg": -7, "zero": 0, "big": 9223372036854775807, "huge": 18446744073709551615,
  "int32max": 2147483647, "int32over": 2147483648, "uint32max": 4294967295, "uint32over": 4294967296,
  "int32min": -2147483648, "int32under": -2147483649,
  "whole": 12.0, "frac": 1.5, "exp": 1e300, "negwhole": -3.0,
  "str": "17", "empty": "", "t": true, "f": false, "null": null,
  "arr": [1, 2], "obj": {"a": 1}
})";

// What each integer accessor and get_double read from a member; none: the fallback.
struct NumberRow {
  const char* key;
  std::optional<std::int64_t> i64, i32, u32;
  std::optional<std::uint64_t> u64;
  std::optional<double> real;
};
void PrintTo(const NumberRow& c, std::ostream* os) {
  *os << c.key;
}
constexpr std::nullopt_t no = std::nullopt;
constexpr std::int64_t kI64Max = std::numeric_limits<std::int64_t>::max();

class NumberTest : public ::testing::TestWithParam<NumberRow> {};

TEST_P(NumberTest, IntegersOnlyFromIntegralNumbersInRange) {
  const Json::Value doc = parsed(kDoc);
  const NumberRow& r = GetParam();
  EXPECT_EQ(r.i64.value_or(-99), jsonx::get_int64(doc, r.key, -99));
  EXPECT_EQ(r.i32.value_or(-99), jsonx::get_int32(doc, r.key, -99));
  EXPECT_EQ(r.u32.value_or(77), jsonx::get_uint32(doc, r.key, 77u));
  EXPECT_EQ(r.u64.value_or(77), jsonx::get_uint64(doc, r.key, 77u));
  EXPECT_DOUBLE_EQ(r.real.value_or(-1.0), jsonx::get_double(doc, r.key, -1.0));
}

INSTANTIATE_TEST_SUITE_P(
    Members, NumberTest,
    ::testing::Values(NumberRow{"int", 42, 42, 42, 42, 42}, NumberRow{"neg", -7, -7, no, no, -7},
                      NumberRow{"zero", 0, 0, 0, 0, 0},
                      NumberRow{"big", kI64Max, no, no, kI64Max, 9.2233720368547758e18},
                      NumberRow{"huge", no, no, no, std::numeric_limits<std::uint64_t>::max(),
                                1.8446744073709552e19},
                      NumberRow{"int32max", 2147483647, 2147483647, 2147483647, 2147483647, 2147483647.0},
                      NumberRow{"int32over", 2147483648, no, 2147483648, 2147483648, 2147483648.0},
                      NumberRow{"uint32max", 4294967295, no, 4294967295, 4294967295, 4294967295.0},
                      NumberRow{"uint32over", 4294967296, no, no, 4294967296, 4294967296.0},
                      NumberRow{"int32min", -2147483648LL, -2147483648LL, no, no, -2147483648.0},
                      NumberRow{"int32under", -2147483649LL, no, no, no, -2147483649.0},
                      NumberRow{"whole", 12, 12, 12, 12, 12.0}, NumberRow{"negwhole", -3, -3, no, no, -3.0},
                      NumberRow{"frac", no, no, no, no, 1.5}, NumberRow{"exp", no, no, no, no, 1e300},
                      NumberRow{"str", no, no, no, no, no}, NumberRow{"empty", no, no, no, no, no},
                      NumberRow{"t", no, no, no, no, no}, NumberRow{"f", no, no, no, no, no},
                      NumberRow{"null", no, no, no, no, no}, NumberRow{"arr", no, no, no, no, no},
                      NumberRow{"obj", no, no, no, no, no}, NumberRow{"missing", no, no, no, no, no}),
    [](const ::testing::TestParamInfo<NumberRow>& p) { return std::string(p.param.key); });

TEST(JsonAccess, OnlyAJsonBoolIsABoolAndOnlyAJsonStringAString) {
  const Json::Value doc = parsed(kDoc);
  EXPECT_TRUE(jsonx::get_bool(doc, "t", false));
  EXPECT_FALSE(jsonx::get_bool(doc, "f", true));
  EXPECT_EQ("17", jsonx::get_string(doc, "str", "fb"));
  EXPECT_EQ("", jsonx::get_string(doc, "empty", "fb"));
  for (const char* key : {"int", "zero", "frac", "null", "arr", "obj", "missing"}) {
    EXPECT_TRUE(jsonx::get_bool(doc, key, true)) << key;
    EXPECT_FALSE(jsonx::get_bool(doc, key, false)) << key;
    EXPECT_EQ("fb", jsonx::get_string(doc, key, "fb")) << key;
  }
  EXPECT_TRUE(jsonx::get_bool(doc, "str", true));
  EXPECT_EQ("fb", jsonx::get_string(doc, "t", "fb"));
}

TEST(JsonAccess, WrongTypesGiveEmptyContainersAndNonObjectsHaveNoMembers) {
  Json::Value doc = parsed(kDoc);
  EXPECT_EQ(2u, jsonx::get_array(doc, "arr").size());
  EXPECT_EQ(1, jsonx::get_int64(jsonx::get_object(doc, "obj"), "a"));
  for (const char* key : {"int", "str", "null", "missing", "obj"})
    EXPECT_TRUE(jsonx::get_array(doc, key).isArray() && jsonx::get_array(doc, key).empty()) << key;
  for (const char* key : {"int", "str", "null", "missing", "arr"})
    EXPECT_TRUE(jsonx::get_object(doc, key).isObject() && jsonx::get_object(doc, key).empty()) << key;
  EXPECT_TRUE(jsonx::has(doc, "null"));  // present though null
  EXPECT_FALSE(jsonx::has(doc, "nothing"));
  EXPECT_TRUE(jsonx::member(doc, "nothing").isNull());
  EXPECT_EQ(22u, doc.size());  // nothing was inserted
  for (const Json::Value& v :
       {Json::Value(3), Json::Value("s"), Json::Value(Json::arrayValue), Json::Value()}) {
    EXPECT_FALSE(jsonx::has(v, "a"));
    EXPECT_EQ(9, jsonx::get_int64(v, "a", 9));
  }
}

// The reader is kept per thread, so every broken document is followed by a
// good one: it must read as itself, with nothing left over from the failure.
TEST(JsonParse, GarbageFailsWithoutThrowingAndResetsTheOutput) {
  std::vector<std::string> texts = {"",         "{",      "{\"a\":}", "[1,,2]", "nul", "{\"a\":1} trailing",
                                    "\xFF\xFE", "{'a':1}"};
  texts.push_back(std::string(100000, '[') + std::string(100000, ']'));  // nesting far too deep
  texts.emplace_back();
  for (int i = 0; i < 50000; ++i) texts.back() += "{\"a\":";
  texts.back() += "1" + std::string(50000, '}');
  for (const std::string& text : texts) {
    Json::Value out(123);
    std::string error;
    EXPECT_FALSE(jsonx::parse(text, out, &error)) << text.substr(0, 20);
    EXPECT_TRUE(out.isNull()) << text.substr(0, 20);
    EXPECT_FALSE(error.empty()) << text.substr(0, 20);
    Json::Value good;
    ASSERT_TRUE(jsonx::parse(R"({"b":[1,{"c":null}]})", good, &error)) << text.substr(0, 20) << ": " << error;
    EXPECT_EQ(R"({"b":[1,{"c":null}]})", jsonx::compact(good)) << text.substr(0, 20);
  }
}

TEST(JsonParse, CommentsAreReadButNotKeptAndCompactIsOneLine) {
  Json::Value out;
  ASSERT_TRUE(jsonx::parse("{ // note\n \"b\": 1, \"a\": \"x y\" /* more */, \"c\": [true] }", out));
  EXPECT_EQ(R"({"a":"x y","b":1,"c":[true]})", jsonx::compact(out));
  EXPECT_EQ("null", jsonx::compact(Json::Value()));
}

// Secrets are masked wherever they sit: top level, nested objects, arrays,
// any value type; empty values stay visible; other members are untouched.
TEST(JsonMask, SecretMembersAtAnyDepthShowAsStars) {
  const Json::Value in = parsed(R"({
    "action": "get_token", "token": "tok-1", "access_token": "acc-2", "Refresh_Token": "ref-3",
    "content": {"password": "pw-4", "otp": "", "proxy_password": "pp-5", "note": "keep"},
    "list": [{"client_secret": {"x": "sec-6"}}, {"OTPCode": 123456}, "plain"],
    "tokens": 3, "password_hint": null
  })");
  const Json::Value out = jsonx::masked(in);
  const std::string text = jsonx::compact(out);
  for (const char* secret : {"tok-1", "acc-2", "ref-3", "pw-4", "pp-5", "sec-6", "123456"})
    EXPECT_EQ(text.find(secret), std::string::npos) << secret << " in " << text;
  EXPECT_EQ(jsonx::get_string(out, "token"), "***");
  EXPECT_EQ(jsonx::get_string(out["list"][0], "client_secret"), "***");
  EXPECT_EQ(jsonx::get_string(out["content"], "otp"), "") << "an empty value stays visible";
  EXPECT_TRUE(out["password_hint"].isNull());
  EXPECT_EQ(jsonx::get_string(out["content"], "note"), "keep");
  EXPECT_EQ(jsonx::get_int32(out, "tokens"), 3) << "a name merely starting like a secret is kept";
  EXPECT_EQ(out["list"][2], Json::Value("plain"));
  EXPECT_EQ(jsonx::get_string(in, "token"), "tok-1") << "the original is never changed";
  // Names in any spelling; query parameters in any case or percent-encoding.
  EXPECT_EQ(jsonx::masked(parsed(R"({"accessToken": "a", "sessionKey": "b", "Session-Id": "c",
      "url": "https://h/p?ACCESS_TOKEN=d&x=1", "u2": "https://h/?access_tok%65%4E=e#f",
      "u3": "nimbrabackup://p?Token=", "plain": "a=b&x=y"})")),
            parsed(R"({"accessToken": "***", "sessionKey": "***", "Session-Id": "***",
      "url": "https://h/p?ACCESS_TOKEN=***&x=1", "u2": "https://h/?access_tok%65%4E=***#f",
      "u3": "nimbrabackup://p?Token=", "plain": "a=b&x=y"})"));
  // Other shapes come back as they are.
  for (const char* shape : {R"({"content": ["password"]})", R"("text")", R"({"password": null})"})
    EXPECT_EQ(jsonx::masked(parsed(shape)), parsed(shape)) << shape;
}

}  // namespace
