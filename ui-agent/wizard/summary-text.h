#pragma once
// What the summary page shows for a "get_site_info" answer, as pure
// functions of the answer's JSON: site names, policy names, the backup scope
// and schedule lines, the site -> subscription map and the account type.
// Every member is read through the tolerant jsonx accessors, so a member of
// the wrong type reads like a missing one.

#include <json/value.h>

#include <QMap>
#include <QString>

#include <optional>

namespace summary_text {

// The name shown for a site, from its "billing" object: the built-in names
// of "US", "EU" and "TW", else region "i18n" + "-" + city "i18n" (a bare
// hyphen, no spaces).
QString site_display_name(const Json::Value& billing);

// The policy name shown for a "backup_policy": for a default policy the name
// of its backup type (1 personal computer, 2 physical server, other types
// empty), otherwise the service's "policy_name".
QString policy_display_name(const Json::Value& policy);

// The backup scope line of a "backup_policy" and whether the volume list was
// shortened (the console note is shown exactly then).
struct Scope {
  QString text;
  bool shortened = false;
};
Scope scope_text(const Json::Value& policy);

// The schedule line of a "backup_policy"; nothing for a schedule type the
// agent does not know (the row keeps what it showed).
std::optional<QString> schedule_text(const Json::Value& policy);

// Region code -> "subscription_id" of every element of "data"; when a code
// repeats, the later element wins.
QMap<QString, QString> site_map(const Json::Value& response);

// "nimbra" when element 0's policy says exactly "nimbra", else "vell".
QString account_type(const Json::Value& response);
inline bool skips_summary(const Json::Value& response) {
  return account_type(response) == QLatin1String("nimbra");
}

// The answer with every element's "backup_policy"."policy_name" replaced by
// policy_display_name(); elements that are not objects are kept as they are.
Json::Value with_display_policy_names(const Json::Value& response);

// Element `index` of "data" (a null value when there is none) and the pieces
// of it the page uses.
const Json::Value& site(const Json::Value& response, int index);
int site_count(const Json::Value& response);
QString site_code(const Json::Value& site);
QString console_url(const Json::Value& site);  // "web_console_url"

// `text` in a line-height div: <div style="line-height:NNpx;"> ... </div>
// (with `semicolon` false no ';' after the length). The length is scaled with
// the display, as style sheets are.
QString line_height_div(const QString& text, int logicalPx, bool semicolon = true);

}  // namespace summary_text
