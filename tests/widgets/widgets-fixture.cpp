#include "widgets-fixture.h"

#include <QDir>

#include "image-manager.h"
#include "logger.h"
#include "style-manager.h"
#include "ui-path-manager.h"

namespace widgets_test {

QString sourceResources() {
  return QDir::cleanPath(qEnvironmentVariable("NIMBRA_SOURCE_DIR", QStringLiteral(".")) +
                         QStringLiteral("/resource"));
}

void loadProductLook() {
  const QString res = sourceResources();
  UIPathManager::getInstance()->setPath(QStringLiteral("resource_path"), res);
  ImageManager::getInstance()->initialize(0);
  StyleManager::getInstance()->clear();
  StyleManager::getInstance()->initialize(
      {res + QStringLiteral("/agent.stylesheet"), res + QStringLiteral("/component.business.stylesheet")});
}

const QStringList& agentStyleNames() {
  static const QStringList names{
      "about_app_name", "about_link_label", "about_version", "about_window", "component.apply_button",
      "component.cancel_button", "component.checkbox", "component.confirm_message_box",
      "component.info_message_box", "component.lineedit", "component.lineedit_label",
      "component.radio_button", "component.scrollbar", "editable_combobox", "hline_divider",
      "lineedit_disable_gray", "lineedit_focus_green", "log_close_btn", "log_widget_time", "nimbra_button",
      "nimbra_button_2", "nimbra_button_normal", "non_editable_combobox", "summary_combobox",
      "summary_header", "summary_intro", "summary_label", "summary_value", "tray_email",
      "tray_finish_time_display", "tray_menu", "tray_progressbar", "tray_right_menu", "tray_setting_menu",
      "tray_status_display", "tray_title", "tray_usage_blue", "tray_usage_red", "tray_user_icon",
      "welcome_description", "welcome_title", "wizard_informative_text_15px_1E2832",
      "wizard_text_17px_1E2832",
      // the layer's own components
      "component.message_sheet", "component.icon_button", "component.link_label"};
  return names;
}

const QStringList& agentPictureNames() {
  static const QStringList names{
      "app_img", "icon_agent", "icon_beta", "icn_dot", "icn_imsg", "icn_list", "wdheader_bt_close",
      "wz_ill_backup_agent", "status_m_backing_up", "status_m_cancel", "status_m_done", "status_m_error",
      "status_m_idle", "logo_tray_icn_connect", "logo_tray_icn_green", "logo_tray_icn_blue",
      "logo_tray_icn_red", "logo_tray_icn_orange", "logo_tray_icn_connect_dark", "logo_tray_icn_green_dark",
      "logo_tray_icn_blue_dark", "logo_tray_icn_red_dark", "logo_tray_icn_orange_dark",
      // the layer's own pictures
      "icn_msg_error", "icn_msg_question", "check_on", "check_on_disabled", "arrow_down",
      "arrow_down_disabled"};
  return names;
}

LogCapture::LogCapture() : path_(dir_.file("ui.txt")) {
  vlog::init(vlog::kRotatingFile, std::wstring(path_.begin(), path_.end()), L"", "", 5, 1);
}

LogCapture::~LogCapture() {
  vlog::shutdown();
}

std::string LogCapture::text() {
  vlog::shutdown();
  const std::string content = nimbra_test::read_file(path_);
  vlog::init(vlog::kRotatingFile, std::wstring(path_.begin(), path_.end()), L"", "", 5, 1);
  return content;
}

}  // namespace widgets_test
