#pragma once
// Type-tolerant reading of JSON that comes from another program.
//
// jsoncpp's asInt64(), asString() and friends throw (or assert) when a member
// has another type than asked for. Everything the agent reads from the
// service, a pipe peer or a file goes through these accessors instead: a
// member of the wrong type reads as the default, exactly as a missing one.
//
//   int64_t code = jsonx::get_int64(answer["error"], "code");
//   const Json::Value& logs = jsonx::get_array(content, "logs");

#include <json/value.h>

#include <cstdint>
#include <string>

namespace jsonx {

// The member `key` of `v` when `v` is an object that has it, else a null value.
// Never inserts into `v` (operator[] on a non-const value would).
const Json::Value& member(const Json::Value& v, const char* key);
bool has(const Json::Value& v, const char* key);

// Scalars. Integers accept any JSON integer that fits the target type and a
// double with no fractional part within range; everything else (strings,
// bools, objects, out of range) reads as `fallback`.
std::int64_t to_int64(const Json::Value& v, std::int64_t fallback = 0);
std::uint64_t to_uint64(const Json::Value& v, std::uint64_t fallback = 0);
std::int32_t to_int32(const Json::Value& v, std::int32_t fallback = 0);
std::uint32_t to_uint32(const Json::Value& v, std::uint32_t fallback = 0);
double to_double(const Json::Value& v, double fallback = 0.0);
// Only a JSON bool is a bool.
bool to_bool(const Json::Value& v, bool fallback = false);
// Only a JSON string is a string.
std::string to_string(const Json::Value& v, const std::string& fallback = std::string());

// The same, for a member of an object.
std::int64_t get_int64(const Json::Value& obj, const char* key, std::int64_t fallback = 0);
std::uint64_t get_uint64(const Json::Value& obj, const char* key, std::uint64_t fallback = 0);
std::int32_t get_int32(const Json::Value& obj, const char* key, std::int32_t fallback = 0);
std::uint32_t get_uint32(const Json::Value& obj, const char* key, std::uint32_t fallback = 0);
double get_double(const Json::Value& obj, const char* key, double fallback = 0.0);
bool get_bool(const Json::Value& obj, const char* key, bool fallback = false);
std::string get_string(const Json::Value& obj, const char* key, const std::string& fallback = std::string());

// Containers: the member when it has the asked type, else a shared empty
// object / array (so callers may iterate the result unconditionally).
const Json::Value& get_object(const Json::Value& obj, const char* key);
const Json::Value& get_array(const Json::Value& obj, const char* key);
bool is_object(const Json::Value& v);  // an object (not null)

// Parsing without exceptions: false (and `error` filled) on bad text, which
// includes anything but blanks after the document.
bool parse(const std::string& text, Json::Value& out, std::string* error = nullptr,
           bool collect_comments = false);
// Compact one-line serialisation ({"a":1}), for replies and log lines.
std::string compact(const Json::Value& v);

// True for a member name whose value must never reach a log line, letter
// case and the separators _ - . ignored: names ending in "token"
// ("access_token", "accessToken"), "key" ("sessionKey", "api_key") or
// "sessionid", and names containing "password", "passwd", "otp", "secret" or
// "credential".
bool is_secret_name(const std::string& name);
// `text` with the value of every secret query parameter ("?token=",
// "&ACCESS_TOKEN=", "access_tok%65n=": names percent-decoded) as "***".
std::string masked_text(const std::string& text);
// A copy of `v` for a log line: the value of every secret member, at any
// depth (inside arrays too), replaced by "***", and secret query parameters
// in every string masked as masked_text() does. An empty string or null
// stays as it is, so that the line still tells that nothing was given.
Json::Value masked(const Json::Value& v);

}  // namespace jsonx
