#include "vantor-core/lib/json-access.h"

#include "logging/per-thread.h"

#include <json/reader.h>
#include <json/writer.h>

#include <cmath>
#include <limits>
#include <memory>
#include <sstream>

namespace jsonx {
namespace {

const Json::Value& null_value() {
  static const Json::Value v;
  return v;
}

// An integral value within [lo, hi], from a JSON integer or an integral double.
template <typename T>
bool integral(const Json::Value& v, T& out) {
  if (v.isInt64()) {  // a signed 64-bit integer (the value fits int64)
    const std::int64_t i = v.asInt64();
    if constexpr (std::is_signed_v<T>) {
      if (i < static_cast<std::int64_t>(std::numeric_limits<T>::min()) ||
          i > static_cast<std::int64_t>(std::numeric_limits<T>::max()))
        return false;
    } else {
      if (i < 0 || static_cast<std::uint64_t>(i) > std::numeric_limits<T>::max()) return false;
    }
    out = static_cast<T>(i);
    return true;
  }
  if (v.isUInt64()) {  // above int64 max
    const std::uint64_t u = v.asUInt64();
    if (u > static_cast<std::uint64_t>(std::numeric_limits<T>::max())) return false;
    out = static_cast<T>(u);
    return true;
  }
  if (v.isDouble()) {
    const double d = v.asDouble();
    if (!std::isfinite(d) || std::trunc(d) != d) return false;
    // Compare in long double so the bounds of 64-bit types are exact enough.
    const long double ld = d;
    if (ld < static_cast<long double>(std::numeric_limits<T>::min()) ||
        ld > static_cast<long double>(std::numeric_limits<T>::max()))
      return false;
    out = static_cast<T>(d);
    return true;
  }
  return false;
}

template <typename T>
T integral_or(const Json::Value& v, T fallback) {
  T out{};
  return integral(v, out) ? out : fallback;
}

}  // namespace

const Json::Value& member(const Json::Value& v, const char* key) {
  if (!v.isObject()) return null_value();
  const Json::Value* found = v.find(key, key + std::char_traits<char>::length(key));
  return found ? *found : null_value();
}

bool has(const Json::Value& v, const char* key) {
  return v.isObject() && v.find(key, key + std::char_traits<char>::length(key)) != nullptr;
}

std::int64_t to_int64(const Json::Value& v, std::int64_t fallback) {
  return integral_or(v, fallback);
}
std::uint64_t to_uint64(const Json::Value& v, std::uint64_t fallback) {
  return integral_or(v, fallback);
}
std::int32_t to_int32(const Json::Value& v, std::int32_t fallback) {
  return integral_or(v, fallback);
}
std::uint32_t to_uint32(const Json::Value& v, std::uint32_t fallback) {
  return integral_or(v, fallback);
}

double to_double(const Json::Value& v, double fallback) {
  return v.isNumeric() && !v.isBool() ? v.asDouble() : fallback;
}

bool to_bool(const Json::Value& v, bool fallback) {
  return v.isBool() ? v.asBool() : fallback;
}

std::string to_string(const Json::Value& v, const std::string& fallback) {
  return v.isString() ? v.asString() : fallback;
}

std::int64_t get_int64(const Json::Value& obj, const char* key, std::int64_t fallback) {
  return to_int64(member(obj, key), fallback);
}
std::uint64_t get_uint64(const Json::Value& obj, const char* key, std::uint64_t fallback) {
  return to_uint64(member(obj, key), fallback);
}
std::int32_t get_int32(const Json::Value& obj, const char* key, std::int32_t fallback) {
  return to_int32(member(obj, key), fallback);
}
std::uint32_t get_uint32(const Json::Value& obj, const char* key, std::uint32_t fallback) {
  return to_uint32(member(obj, key), fallback);
}
double get_double(const Json::Value& obj, const char* key, double fallback) {
  return to_double(member(obj, key), fallback);
}
bool get_bool(const Json::Value& obj, const char* key, bool fallback) {
  return to_bool(member(obj, key), fallback);
}
std::string get_string(const Json::Value& obj, const char* key, const std::string& fallback) {
  return to_string(member(obj, key), fallback);
}

const Json::Value& get_object(const Json::Value& obj, const char* key) {
  static const Json::Value empty(Json::objectValue);
  const Json::Value& m = member(obj, key);
  return m.isObject() ? m : empty;
}

const Json::Value& get_array(const Json::Value& obj, const char* key) {
  static const Json::Value empty(Json::arrayValue);
  const Json::Value& m = member(obj, key);
  return m.isArray() ? m : empty;
}

bool is_object(const Json::Value& v) {
  return v.isObject();
}

namespace {

// Made once per thread and kind: making a reader costs more than reading a
// small answer, and a reader starts afresh with every document. (Not
// thread_local objects: see per-thread.h.)
template <bool kComments>
Json::CharReader* make_reader() {
  Json::CharReaderBuilder builder;
  builder["collectComments"] = kComments;
  // Anything but blanks after the document means a broken message.
  builder["failIfExtra"] = true;
  return builder.newCharReader();
}
vlog::PerThread<Json::CharReader> readers[2] = {vlog::PerThread<Json::CharReader>(make_reader<false>),
                                                vlog::PerThread<Json::CharReader>(make_reader<true>)};

}  // namespace

bool parse(const std::string& text, Json::Value& out, std::string* error, bool collect_comments) {
  std::string errs;
  Json::Value parsed;
  const bool ok = readers[collect_comments ? 1 : 0].with([&](Json::CharReader& reader) {
    try {
      return reader.parse(text.data(), text.data() + text.size(), &parsed, &errs);
    } catch (const std::exception& e) {  // jsoncpp throws on pathological nesting
      errs = e.what();
      return false;
    }
  });
  if (ok) {
    out = std::move(parsed);
  } else {
    out = Json::Value();
    if (error) *error = errs;
  }
  return ok;
}

std::string compact(const Json::Value& v) {
  Json::StreamWriterBuilder builder;
  builder["indentation"] = "";
  builder["commentStyle"] = "None";
  return Json::writeString(builder, v);
}

bool is_secret_name(const std::string& name) {
  // Letter case and separators do not matter: "access_token", "accessToken"
  // and "Access-Token" are one name.
  std::string flat;
  for (char c : name) {
    if (c == '_' || c == '-' || c == '.' || c == ' ') continue;
    flat.push_back(c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c);
  }
  const auto ends_with = [&flat](const std::string& tail) {
    return flat.size() >= tail.size() && flat.compare(flat.size() - tail.size(), tail.size(), tail) == 0;
  };
  if (ends_with("token") || ends_with("key") || ends_with("sessionid")) return true;
  for (const char* part : {"password", "passwd", "otp", "secret", "credential"})
    if (flat.find(part) != std::string::npos) return true;
  return false;
}

namespace {

int hex_value(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

std::string percent_decoded(const std::string& text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '%' && i + 2 < text.size() && hex_value(text[i + 1]) >= 0 && hex_value(text[i + 2]) >= 0) {
      out.push_back(static_cast<char>(hex_value(text[i + 1]) * 16 + hex_value(text[i + 2])));
      i += 2;
    } else {
      out.push_back(text[i] == '+' ? ' ' : text[i]);
    }
  }
  return out;
}

bool ends_parameter(char c) {
  return c == '&' || c == ';' || c == '#' || c == '"' || c == '\'' || c == '<' || c == '>' ||
         static_cast<unsigned char>(c) <= ' ';
}

}  // namespace

std::string masked_text(const std::string& text) {
  std::string out;
  std::size_t i = 0;
  const std::size_t n = text.size();
  while (i < n) {
    const char c = text[i];
    out.push_back(c);
    ++i;
    if (c != '?' && c != '&' && c != ';') continue;
    // A parameter: its name up to '=', its value up to the next separator.
    std::size_t eq = i;
    while (eq < n && text[eq] != '=' && !ends_parameter(text[eq]) && text[eq] != '?') ++eq;
    if (eq >= n || text[eq] != '=' || eq == i) continue;
    if (!is_secret_name(percent_decoded(text.substr(i, eq - i)))) continue;
    std::size_t end = eq + 1;
    while (end < n && !ends_parameter(text[end])) ++end;
    out.append(text, i, eq + 1 - i);
    if (end > eq + 1) out += "***";
    i = end;
  }
  return out;
}

namespace {

void mask_in_place(Json::Value& v) {
  if (v.isObject()) {
    for (const std::string& name : v.getMemberNames()) {
      Json::Value& member = v[name];
      if (is_secret_name(name)) {
        const bool empty = member.isNull() || (member.isString() && to_string(member).empty());
        if (!empty) member = "***";
      } else {
        mask_in_place(member);
      }
    }
  } else if (v.isArray()) {
    for (Json::Value& item : v) mask_in_place(item);
  } else if (v.isString()) {
    // Addresses carry secrets in their query ("?access_token=...").
    const std::string text = to_string(v);
    if (text.find('=') != std::string::npos) v = masked_text(text);
  }
}

}  // namespace

Json::Value masked(const Json::Value& v) {
  Json::Value copy = v;
  mask_in_place(copy);
  return copy;
}

}  // namespace jsonx
