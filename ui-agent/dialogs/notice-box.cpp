#include "ui-agent/dialogs/notice-box.h"

#include <QAbstractButton>
#include <QFontMetrics>
#include <QIcon>
#include <QLabel>
#include <QMessageBox>
#include <QTextDocument>
#include <QTextLayout>

#include "widgets/dpi-info.h"

namespace notice_box {

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
