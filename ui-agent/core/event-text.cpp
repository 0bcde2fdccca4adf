// Activity-log event messages: the table of event types, filling their
// values and eliding the rich rendering to well-formed markup.
#include "ui-agent/core/event-text.h"

#include <QApplication>
#include <QFontMetrics>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

#include "logging/logger.h"
#include "ui-agent/core/string-display.h"
#include "vantor-core/lib/json-access.h"
#include "widgets/dpi-info.h"

namespace event_text {
namespace {

using string_display::Span;
using string_display::wrap_bold;

// ---- event table ---------------------------------------------------------

struct EventType {
  quint32 type;
  Kind kind;
  Str row;
  int value_count;  // named kind: how many values, in order
  // Body members supplying the values; nullptr stands for the one fixed value
  // that does not come from the body (an empty text).
  const char* values[2];
};

// clang-format off
constexpr EventType kEvents[] = {
    {1000, Kind::Fixed, Str::internal_error, 0, {nullptr}},
    {1101, Kind::Fixed, Str::task_start, 0, {nullptr}},
    {1102, Kind::Fixed, Str::task_finish, 0, {nullptr}},
    {1103, Kind::Fixed, Str::task_cancel, 0, {nullptr}},
    {1104, Kind::Fixed, Str::task_error, 0, {nullptr}},
    {1108, Kind::Fixed, Str::task_partial_success, 0, {nullptr}},
    {1115, Kind::Named, Str::task_start_by_event, 1, {"trigger_event"}},
    {1124, Kind::Named, Str::task_ignored_by_backup_window, 1, {"task_name"}},
    {1132, Kind::Named, Str::task_paused_by_backup_window, 1, {"task_name"}},
    {1133, Kind::Named, Str::task_resumed_by_backup_window, 1, {"task_name"}},
    {1137, Kind::Fixed, Str::task_same_backup_exist, 0, {nullptr}},
    {1145, Kind::Named, Str::task_cancelled_by_backup_window, 1, {"task_name"}},
    {1201, Kind::Named, Str::restore_start, 1, {"destination"}},
    {1202, Kind::Named, Str::restore_cancel, 1, {"destination"}},
    {1203, Kind::Named, Str::restore_finish, 1, {"destination"}},
    {1204, Kind::Named, Str::restore_error, 1, {"destination"}},
    {1208, Kind::Named, Str::restore_partial_success, 1, {"destination"}},
    {5001, Kind::Named, Str::log_connection, 1, {"email"}},
    {6003, Kind::Named, Str::path_restore, 1, {"path"}},
    {6004, Kind::Named, Str::path_restore_skip, 1, {"path"}},
    {6005, Kind::Named, Str::path_restore_overwrite, 1, {"path"}},
    {6006, Kind::Named, Str::path_restore_error, 1, {"path"}},
    {6011, Kind::Named, Str::path_restore_not_support, 1, {"path"}},
    {6015, Kind::Generic, Str::path_restore_parent_not_exist, 0, {nullptr}},
    {6016, Kind::Generic, Str::path_restore_parent_type_conflict, 0, {nullptr}},
    {6017, Kind::Named, Str::path_restore_no_permission, 1, {"path"}},
    {6018, Kind::Named, Str::path_restore_source_error, 2, {"path", "error_code"}},
    {6019, Kind::Named, Str::path_restore_metadata_error, 1, {"path"}},
    {7001, Kind::Fixed, Str::pc_collect_device_spec, 0, {nullptr}},
    {7002, Kind::Named, Str::pc_take_snapshot_start, 1, {"volume_name"}},
    {7003, Kind::Named, Str::pc_take_snapshot_finish, 1, {"volume_name"}},
    {7004, Kind::Named, Str::pc_take_snapshot_finish_error, 2, {"volume_name", "error_code"}},
    {7005, Kind::Named, Str::pc_take_snapshot_set_start, 1, {"volume_name"}},
    {7006, Kind::Named, Str::pc_take_snapshot_set_finish, 1, {"volume_name"}},
    {7007, Kind::Named, Str::pc_take_snapshot_set_finish_error, 1, {"volume_name"}},
    {7009, Kind::Fixed, Str::pc_upload_device_spec_start, 0, {nullptr}},
    {7010, Kind::Fixed, Str::pc_upload_device_spec_finish, 0, {nullptr}},
    {7011, Kind::Fixed, Str::pc_upload_device_spec_finish_error, 0, {nullptr}},
    {7012, Kind::Named, Str::pc_upload_volume_start, 1, {"volume_name"}},
    {7013, Kind::Named, Str::pc_upload_volume_finish, 1, {"volume_name"}},
    {7014, Kind::Named, Str::pc_upload_volume_finish_error, 1, {"volume_name"}},
    {7016, Kind::Fixed, Str::log_pc_update_agent_error, 0, {nullptr}},
    {7020, Kind::Named, Str::pc_read_snapshot_error, 1, {"error_code"}},
    {7021, Kind::Named, Str::pc_snapshot_not_found, 1, {"volume_name"}},
    {7036, Kind::Named, Str::pc_unsupported_dynamic_volume, 1, {"volume_name"}},
    {7037, Kind::Named, Str::pc_unsupported_file_system, 1, {"volume_name"}},
    {7038, Kind::Named, Str::pc_backup_access_denied, 2, {"volume_name", "error_code"}},
    {7039, Kind::Named, Str::pc_backup_sector_not_found, 2, {"volume_name", "error_code"}},
    {7040, Kind::Named, Str::pc_backup_path_not_found, 2, {"volume_name", "error_code"}},
    {7041, Kind::Named, Str::pc_backup_invalid_function, 2, {"volume_name", "error_code"}},
    {7042, Kind::Named, Str::pc_snapshot_open_error, 2, {"volume_name", "error_code"}},
    {7043, Kind::Named, Str::pc_backup_device_busy, 2, {"volume_name", "error_code"}},
    {7044, Kind::Generic, Str::pc_snapshot_skip_bad_cluster, 0, {nullptr}},
    {7045, Kind::Fixed, Str::pc_exec_pre_script, 0, {nullptr}},
    {7046, Kind::Generic, Str::pc_exec_pre_script_ignore_failure, 0, {nullptr}},
    {7047, Kind::Generic, Str::pc_exec_pre_script_error, 0, {nullptr}},
    {7048, Kind::Named, Str::pc_exec_pre_script_timeout, 1, {nullptr}},
    {7049, Kind::Fixed, Str::pc_exec_post_script, 0, {nullptr}},
    {7050, Kind::Generic, Str::pc_exec_post_script_ignore_failure, 0, {nullptr}},
    {7051, Kind::Generic, Str::pc_exec_post_script_error, 0, {nullptr}},
    {7052, Kind::Named, Str::pc_exec_post_script_timeout, 1, {nullptr}},
    {7053, Kind::Fixed, Str::pc_exec_script_client_can_not_access, 0, {nullptr}},
    {7054, Kind::Fixed, Str::pc_exec_script_server_can_not_access, 0, {nullptr}},
    {7055, Kind::Fixed, Str::pc_exec_script_size_too_large, 0, {nullptr}},
    {7067, Kind::Fixed, Str::pc_upload_script_output_file_error, 0, {nullptr}},
    {7068, Kind::Generic, Str::pc_exclude_volume_removable, 0, {nullptr}},
    {7069, Kind::Generic, Str::pc_exclude_volume_external, 0, {nullptr}},
    {7070, Kind::Generic, Str::pc_exclude_volume_unsupported_bus, 0, {nullptr}},
    {7071, Kind::Generic, Str::pc_exclude_volume_unsupported_device, 0, {nullptr}},
    {7072, Kind::Generic, Str::pc_exclude_volume_unsupported_fs, 0, {nullptr}},
    {7073, Kind::Generic, Str::pc_exclude_volume_unknown_fs, 0, {nullptr}},
    {7074, Kind::Generic, Str::pc_exclude_volume_info_error, 0, {nullptr}},
    {7075, Kind::Generic, Str::pc_shadow_not_found, 0, {nullptr}},
    {7076, Kind::Named, Str::windows_take_snapshot_finish_error, 2, {"volume_name", "error_code"}},
    {7077, Kind::Named, Str::windows_read_snapshot_error, 1, {"error_code"}},
    {7078, Kind::Named, Str::windows_snapshot_open_error, 2, {"error_code", "volume_name"}},
    {7079, Kind::Named, Str::windows_backup_access_denied, 2, {"volume_name", "error_code"}},
    {7080, Kind::Named, Str::windows_backup_sector_not_found, 2, {"volume_name", "error_code"}},
    {7081, Kind::Named, Str::windows_backup_path_not_found, 2, {"volume_name", "error_code"}},
    {7082, Kind::Named, Str::windows_backup_invalid_function, 2, {"volume_name", "error_code"}},
    {7083, Kind::Fixed, Str::pc_snapshot_no_available_volume, 0, {nullptr}},
    {7084, Kind::Named, Str::pc_custom_vol_not_found, 1, {"plan_name"}},
    {7085, Kind::Fixed, Str::pc_backup_time_skew, 0, {nullptr}},
    {7086, Kind::Fixed, Str::pc_cancel_due_to_resume, 0, {nullptr}},
    {7087, Kind::Generic, Str::pc_create_cache_volume, 0, {nullptr}},
    {7088, Kind::Generic, Str::pc_exclude_volume_unrecognize, 0, {nullptr}},
    {7089, Kind::Generic, Str::pc_snapshot_need_full_access, 0, {nullptr}},
    {7090, Kind::Generic, Str::pc_asr_failed, 0, {nullptr}},
    {7091, Kind::Generic, Str::pc_asr_failed_need_restart, 0, {nullptr}},
    {7092, Kind::Generic, Str::pc_upload_need_kext_allow, 0, {nullptr}},
    {7093, Kind::Generic, Str::pc_cache_not_found, 0, {nullptr}},
    {7094, Kind::Generic, Str::pc_mac_snapshot_not_found, 0, {nullptr}},
    {7095, Kind::Generic, Str::pc_asr_cbt_failed, 0, {nullptr}},
    {7096, Kind::Generic, Str::pc_take_snapshot_start_all, 0, {nullptr}},
    {7097, Kind::Generic, Str::pc_take_snapshot_finish_all, 0, {nullptr}},
    {7098, Kind::Generic, Str::pc_backup_hidden_auth_failed, 0, {nullptr}},
    {7099, Kind::Generic, Str::pc_mac_encrypted_volume_cannot_be_mounted, 0, {nullptr}},
    {7100, Kind::Generic, Str::pc_backup_need_full_disk_access, 0, {nullptr}},
    {7101, Kind::Fixed, Str::pc_need_reset_smc, 0, {nullptr}},
    {7102, Kind::Named, Str::pc_volume_fsck_fail, 1, {"volume_name"}},
    {7103, Kind::Named, Str::pc_volume_inode_corrupt, 2, {"volume_name", "inode_number"}},
    {7104, Kind::Generic, Str::pc_hfs_not_mount, 0, {nullptr}},
    {8001, Kind::Fixed, Str::reason_no_space, 0, {nullptr}},
    {8002, Kind::Fixed, Str::reason_no_perm, 0, {nullptr}},
    {8003, Kind::Fixed, Str::reason_no_quota, 0, {nullptr}},
    {8004, Kind::Fixed, Str::reason_readonly_fs, 0, {nullptr}},
    {8005, Kind::Fixed, Str::reason_io_err, 0, {nullptr}},
    {8006, Kind::Fixed, Str::reason_data_corrupt, 0, {nullptr}},
    {8014, Kind::Fixed, Str::reason_plan_quota_exceeded, 0, {nullptr}},
    {8015, Kind::Fixed, Str::reason_memory_not_enough, 0, {nullptr}},
    {8016, Kind::Fixed, Str::reason_network_error, 0, {nullptr}},
    {8017, Kind::Fixed, Str::reason_no_address, 0, {nullptr}},
    {8018, Kind::Fixed, Str::reason_request_timeout, 0, {nullptr}},
    {8019, Kind::Fixed, Str::reason_unauthorized, 0, {nullptr}},
    {8020, Kind::Fixed, Str::reason_agent_lack_capabilities, 0, {nullptr}},
    {8300, Kind::Fixed, Str::err_backup_role_invalid, 0, {nullptr}},
};
// clang-format on

constexpr bool events_sorted() {
  for (std::size_t i = 1; i < std::size(kEvents); ++i) {
    if (kEvents[i - 1].type >= kEvents[i].type) return false;
  }
  return true;
}
static_assert(events_sorted(), "event types must be sorted for the binary search");
static_assert(std::size(kEvents) == 116, "36 fixed, 50 named and 30 generic types");

const EventType* find_event(quint32 type) {
  const EventType* end = std::end(kEvents);
  const EventType* it = std::lower_bound(std::begin(kEvents), end, type,
                                         [](const EventType& e, quint32 t) { return e.type < t; });
  return it != end && it->type == type ? it : nullptr;
}

// Length of the text with every match of "<[^>]*>" removed, subtracted from
// its length: how many characters are markup.
int markup_length(const QString& tmpl) {
  int markup = 0;
  int i = 0;
  const int n = tmpl.size();
  while (i < n) {
    if (tmpl.at(i) == QLatin1Char('<')) {
      const int close = tmpl.indexOf(QLatin1Char('>'), i + 1);
      if (close < 0) break;  // no later "<" can close either
      markup += close - i + 1;
      i = close + 1;
    } else {
      ++i;
    }
  }
  return markup;
}

// Qt's eliding shows a line feed as a line separator.
bool same_char(QChar a, QChar b) {
  if (a == b) return true;
  auto norm = [](QChar c) { return c == QLatin1Char('\n') ? QChar(QChar::LineSeparator) : c; };
  return norm(a) == norm(b);
}

// How much of `filled` may be kept so that the markup stays well-formed:
// never inside a tag (a value filled into an attribute counts as part of the
// tag), and the elements opened before the cut listed for closing.
struct Cut {
  int kept;
  QStringList open;  // element names, outermost first
};

Cut well_formed_cut(const QString& filled, const std::vector<Span>& spans, int kept) {
  Cut cut{kept, {}};
  std::size_t next_span = 0;
  // Skips a value (text from the service, never markup) starting at `i`.
  auto skip_span = [&](int& i) {
    while (next_span < spans.size() && spans[next_span].start + spans[next_span].length <= i) ++next_span;
    if (next_span < spans.size() && spans[next_span].start == i && spans[next_span].length > 0) {
      i += spans[next_span].length;
      return true;
    }
    return false;
  };
  int i = 0;
  while (i < kept) {
    if (skip_span(i)) continue;
    if (filled.at(i) != QLatin1Char('<')) {
      ++i;
      continue;
    }
    int close = i + 1;
    while (close < kept) {
      if (skip_span(close)) continue;
      if (filled.at(close) == QLatin1Char('>')) break;
      ++close;
    }
    if (close >= kept) {
      cut.kept = i;  // the cut falls inside this tag: drop the tag
      break;
    }
    static const QRegularExpression name_re(QStringLiteral("^<\\s*(/?)\\s*([A-Za-z][A-Za-z0-9]*)"));
    const QString tag = filled.mid(i, close - i + 1);
    const QRegularExpressionMatch m = name_re.match(tag);
    if (m.hasMatch()) {
      const QString name = m.captured(2).toLower();
      static const QStringList kVoid = {QStringLiteral("br"), QStringLiteral("img"), QStringLiteral("hr")};
      if (!m.captured(1).isEmpty()) {
        const int at = cut.open.lastIndexOf(name);
        if (at >= 0) cut.open = cut.open.mid(0, at);
      } else if (!tag.endsWith(QLatin1String("/>")) && !kVoid.contains(name)) {
        cut.open.append(name);
      }
    }
    i = close + 1;
  }
  return cut;
}

// The rich ending shared by every kind: elide the filled text to `width`
// pixels, then put the values that are still shown in bold. A cut never
// falls inside a tag, and what it leaves open is closed after the ellipsis.
QString elide_and_embolden(const QFontMetrics& fm, const QString& filled, const std::vector<Span>& spans,
                           int width) {
  const QString elided = fm.elidedText(filled, Qt::ElideRight, width, 0);
  int kept = 0;
  const int limit = std::min(filled.size(), elided.size());
  while (kept < limit && same_char(filled.at(kept), elided.at(kept))) ++kept;
  const bool whole = kept == filled.size() && elided.size() == filled.size();
  if (whole) return wrap_bold(filled, spans, filled.size(), true);
  const Cut cut = well_formed_cut(filled, spans, kept);
  // The kept part of the original (with bold values), then Qt's tail (the
  // ellipsis), then the closing tags.
  QString out = wrap_bold(filled.left(cut.kept), spans, cut.kept, false);
  if (cut.kept == kept)
    out += elided.midRef(kept);
  else
    out += QChar(0x2026);
  for (int k = cut.open.size() - 1; k >= 0; --k)
    out += QLatin1String("</") + cut.open.at(k) + QLatin1Char('>');
  return out;
}

// A body whose string members are at most kValueCapBytes long: longer ones
// are cut (at a character boundary) and end in an ellipsis. A message shows a
// few lines and a tool tip; a megabyte value would only cost time and memory
// on every rendering.
constexpr int kValueCapBytes = 1024;

bool over_cap(const Json::Value& body) {
  if (!body.isObject()) return false;
  for (auto it = body.begin(); it != body.end(); ++it) {
    const char* begin = nullptr;
    const char* end = nullptr;
    if (it->isString() && it->getString(&begin, &end) && end - begin > kValueCapBytes) return true;
  }
  return false;
}

Json::Value bounded_body(const Json::Value& body) {
  Json::Value out(Json::objectValue);
  for (auto it = body.begin(); it != body.end(); ++it) {
    const char* begin = nullptr;
    const char* end = nullptr;
    if (it->isString() && it->getString(&begin, &end) && end - begin > kValueCapBytes) {
      int cut = kValueCapBytes;
      while (cut > 0 && (static_cast<unsigned char>(begin[cut]) & 0xC0) == 0x80) --cut;
      out[it.name()] = std::string(begin, begin + cut) + "\xE2\x80\xA6";
    } else {
      out[it.name()] = *it;
    }
  }
  return out;
}

// Named kind: "{...}" spans become %1, %2, ... in order of appearance,
// searching both braces from the start every time.
QString to_markers(QString tmpl) {
  int counter = 1;
  for (;;) {
    const int open = tmpl.indexOf(QLatin1Char('{'));
    const int close = tmpl.indexOf(QLatin1Char('}'));
    if (open < 0 || close < 0 || close < open) break;
    tmpl.replace(open, close - open + 1, QLatin1Char('%') + QString::number(counter++));
  }
  return tmpl;
}

// Puts the i-th value on every marker %i (1 <= i <= values), like
// QString::arg with one call per value but in a single pass, so that a value
// holding a marker is not filled again. Other markers stay as they are.
QString fill_markers(const QString& tmpl, const QStringList& values, std::vector<Span>* spans) {
  QString out;
  out.reserve(tmpl.size() + 32);
  const int n = tmpl.size();
  int pos = 0;
  int i = 0;
  while (i < n) {
    if (tmpl.at(i) != QLatin1Char('%') || i + 1 >= n || !tmpl.at(i + 1).isDigit()) {
      ++i;
      continue;
    }
    int j = i + 1;
    int number = 0;
    // At most two digits, as QString::arg reads them.
    while (j < n && j < i + 3 && tmpl.at(j).isDigit()) number = number * 10 + tmpl.at(j++).digitValue();
    if (number < 1 || number > values.size()) {
      i = j;
      continue;
    }
    out.append(tmpl.midRef(pos, i - pos));
    const QString& value = values.at(number - 1);
    if (spans) spans->push_back({out.size(), value.size()});
    out.append(value);
    pos = i = j;
  }
  out.append(tmpl.midRef(pos));
  return out;
}

// Device pixels granted to a rich message.
int width_budget(int limit) {
  return static_cast<int>(std::trunc(DPIinfo::getDPI() * (limit - 20)));
}

}  // namespace

Kind kind_of(quint32 type) {
  const EventType* event = find_event(type);
  return event ? event->kind : Kind::Unknown;
}

std::optional<Str> row_of(quint32 type) {
  const EventType* event = find_event(type);
  if (!event) return std::nullopt;
  return event->row;
}

QString render(const LogEntry& entry, bool rich, int limit) {
  return render(entry.type, entry.body, rich, limit);
}

QString render(quint32 type, const Json::Value& full_body, bool rich, int limit) {
  const EventType* event = find_event(type);
  if (!event) {
    LOG_WARN(vlog::kDefaultComponent, "unknown log type: %d", static_cast<int>(type));
    return QString();
  }
  const int width = width_budget(limit);
  Json::Value bounded;
  const bool cut_values = over_cap(full_body);
  if (cut_values) bounded = bounded_body(full_body);
  const Json::Value& body = cut_values ? bounded : full_body;

  switch (event->kind) {
    case Kind::Fixed: {
      const QString message = string_display::text(event->row);
      if (!rich) return message;
      return elide_and_embolden(QFontMetrics(QApplication::font()), message, {}, width);
    }

    case Kind::Named: {
      QString tmpl = to_markers(string_display::text(event->row));
      if (type == 7012 && jsonx::get_bool(body, "cbt")) tmpl += QLatin1String(" [CBT]");
      QStringList values;
      values.reserve(event->value_count);
      for (int i = 0; i < event->value_count; ++i) {
        const char* member = event->values[i];
        values.append(member ? QString::fromStdString(jsonx::get_string(body, member)) : QString());
      }
      if (!rich) return fill_markers(tmpl, values, nullptr);
      const QFontMetrics fm(QApplication::font());
      const int allowance = fm.averageCharWidth() * markup_length(tmpl);
      std::vector<Span> spans;
      const QString filled = fill_markers(tmpl, values, &spans);
      return elide_and_embolden(fm, filled, spans, width + allowance);
    }

    case Kind::Generic: {
      // The body as Qt sees it; anything but an object reads as an empty one.
      const QJsonObject object =
          QJsonDocument::fromJson(QByteArray::fromStdString(body.toStyledString())).object();
      const QString tmpl = string_display::text(event->row);
      std::vector<Span> spans;
      const QString filled = string_display::fill_placeholders(tmpl, object, spans);
      if (!rich) return filled;
      const QFontMetrics fm(QApplication::font());
      const int allowance = fm.averageCharWidth() * markup_length(tmpl);
      return elide_and_embolden(fm, filled, spans, width + allowance);
    }

    case Kind::Unknown:
      break;
  }
  return QString();
}

}  // namespace event_text
