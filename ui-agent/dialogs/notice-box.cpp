#include "ui-agent/dialogs/notice-box.h"

#include <QAbstractButton>
#include <QFontMetrics>
#include <QIcon>
#include <QLabel>
#include <QList>
#include <QPushButton>
#include <QTextDocument>
#include <QTextLayout>

#include "ui-agent/core/string-display.h"
#include "widgets/component-strings.h"
#include "widgets/dpi-info.h"
#include "widgets/style-manager.h"

namespace notice_box {

namespace {

QList<QMessageBox::ButtonRole>& nextAnswers() {
  static QList<QMessageBox::ButtonRole> roles;
  return roles;
}

QString component(const char* key) {
  return ComponentStrings::getInstance()->string(QLatin1String(key));
}

std::unique_ptr<QMessageBox> box_of(const char* name, const char* style, Str text) {
  auto box = std::make_unique<QMessageBox>();
  box->setObjectName(QLatin1String(name));
  box->setWindowTitle(string_display::text(Str::app_name));
  box->setText(string_display::text(text));
  box->setStyleSheet(getStyleSheet(QLatin1String(style)));
  return box;
}

}  // namespace

std::unique_ptr<QMessageBox> logout_question() {
  auto box = box_of("LogoutConfirm", "component.confirm_message_box", Str::desc_confirm_logout);
  QPushButton* cancel = box->addButton(QMessageBox::Cancel);
  cancel->setText(component("cancel"));
  cancel->setStyleSheet(getStyleSheet(QStringLiteral("component.cancel_button")));
  QPushButton* apply = box->addButton(component("ok"), QMessageBox::ApplyRole);
  apply->setStyleSheet(getStyleSheet(QStringLiteral("component.apply_button")));
  box->setDefaultButton(cancel);
  box->setEscapeButton(cancel);
  finish(*box);
  return box;
}

std::unique_ptr<QMessageBox> exit_notice() {
  auto box = box_of("ExitNotice", "component.info_message_box", Str::desc_exit_app);
  QPushButton* ok = box->addButton(QMessageBox::Ok);
  ok->setText(component("ok"));
  ok->setStyleSheet(getStyleSheet(QStringLiteral("component.apply_button")));
  finish(*box);
  return box;
}

QMessageBox::ButtonRole ask(QMessageBox& box) {
  if (!nextAnswers().isEmpty()) return nextAnswers().takeFirst();
  box.exec();
  QAbstractButton* clicked = box.clickedButton();
  return clicked ? box.buttonRole(clicked) : QMessageBox::InvalidRole;
}

void setNextAnswer(QMessageBox::ButtonRole role) {
  nextAnswers().append(role);
}

int clearNextAnswers() {
  const int left = nextAnswers().size();
  nextAnswers().clear();
  return left;
}

QStringList wrap_lines(const QString& text, const QFont& font, int width) {
  QStringList lines;
  for (const QString& paragraph : text.split(QLatin1Char('\n'))) {
    QTextLayout layout(paragraph, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WordWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
      line.setLineWidth(width);
      lines << paragraph.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
    if (paragraph.isEmpty()) lines << QString();
  }
  return lines;
}

void finish(QMessageBox& box) {
  box.ensurePolished();
  if (auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))) {
    // The style sheet's font is the one the box is drawn in.
    label->ensurePolished();
    if (label->textFormat() != Qt::RichText && !Qt::mightBeRichText(label->text())) {
      const QStringList lines = wrap_lines(label->text(), label->font(), DPIinfo::scaled(kTextWidth));
      label->setText(lines.join(QLatin1Char('\n')));
      const QFontMetrics fm(label->font());
      int widest = 0;
      for (const QString& line : lines) widest = qMax(widest, fm.horizontalAdvance(line));
      label->setMinimumWidth(widest + 2);
    }
  }
  for (QAbstractButton* button : box.buttons()) button->setIcon(QIcon());
}

}  // namespace notice_box
