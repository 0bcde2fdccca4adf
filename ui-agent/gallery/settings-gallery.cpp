// The settings dialog in its states: without and with the organisation's
// note (with and without a daily range), the limit off and on, the range on
// and off, a time range past midnight and a custom start time.

#include <QApplication>
#include <QLineEdit>

#include "ui-agent/dialogs/settings-widget.h"
#include "ui-agent/gallery/screen-gallery.h"

namespace {

Json::Value config(int type, int rate, bool range, const char* start, const char* end) {
  Json::Value c(Json::objectValue);
  c["bandwidth_type"] = type;
  c["bandwidth_rate"] = rate;
  c["bandwidth_limit_range"] = range;
  c["bandwidth_start_time"] = start;
  c["bandwidth_end_time"] = end;
  return c;
}

// The dialog as the tray menu opens it: the server config first (when it
// is valid), then the client config.
QImage grabSettings(const Json::Value& server, const Json::Value& client, bool focusRate = false) {
  SettingsWidget widget;
  if (SettingsWidget::isValidConfig(server)) widget.applyServerConfig(server);
  widget.loadClientConfig(client);
  if (focusRate) {
    widget.show();
    widget.activateWindow();
    QApplication::setActiveWindow(&widget);
    if (auto* edit = widget.findChild<QLineEdit*>(QStringLiteral("SettingsRateEdit"))) {
      edit->setFocus(Qt::TabFocusReason);
      edit->setCursorPosition(edit->text().size());
    }
    QApplication::processEvents();
    QImage img = gallery::grabShown(&widget);
    widget.hide();
    return img;
  }
  return gallery::grabWidget(&widget);
}

void renderSettings() {
  const Json::Value none(Json::objectValue);
  const Json::Value noServerLimit = config(0, 0, false, "00:00", "00:00");
  const Json::Value serverRange = config(1, 50, true, "08:00", "06:00");
  const Json::Value serverFlat = config(1, 200, false, "00:00", "00:00");

  gallery::save(gallery::sheet(QStringLiteral("Settings: no organisation limit"),
                               {{{QStringLiteral("limit off (defaults)"),
                                  grabSettings(none, SettingsWidget::defaultClientConfig())},
                                 {QStringLiteral("limit on, 07:00 to 05:00 next day, rate edit focused"),
                                  grabSettings(noServerLimit, config(1, 100, true, "07:00", "05:00"), true)}},
                                {{QStringLiteral("limit on, range off"),
                                  grabSettings(none, config(1, 20, false, "07:00", "23:00"))},
                                 {QStringLiteral("limit on, custom start 07:30"),
                                  grabSettings(none, config(1, 9999, true, "07:30", "18:30"))}}}),
                "settings-no-note.png");

  gallery::save(gallery::sheet(QStringLiteral("Settings: organisation limit"),
                               {{{QStringLiteral("note with range, limit off"),
                                  grabSettings(serverRange, SettingsWidget::defaultClientConfig())},
                                 {QStringLiteral("note with range, limit on"),
                                  grabSettings(serverRange, config(1, 30, true, "22:00", "06:00"))}},
                                {{QStringLiteral("note without range, limit off"),
                                  grabSettings(serverFlat, SettingsWidget::defaultClientConfig())},
                                 {QStringLiteral("note without range, limit on, range off"),
                                  grabSettings(serverFlat, config(1, 150, false, "07:00", "23:00"))}}}),
                "settings-note.png");
}

}  // namespace

NIMBRA_GALLERY_AREA("settings", renderSettings)
