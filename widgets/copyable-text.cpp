#include "widgets/copyable-text.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QTableWidget>
#include <QTextDocument>

#include <functional>
#include <set>

#include "widgets/component-strings.h"

namespace copyable_text {

namespace {

// Takes the copy key and the context menu of one widget, so that the
// clipboard only ever gets `text()`.
class CopyHandler : public QObject {
 public:
  CopyHandler(QWidget* widget, std::function<QString()> text) : QObject(widget), text_(std::move(text)) {
    widget->installEventFilter(this);
    widget->setContextMenuPolicy(Qt::DefaultContextMenu);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    switch (event->type()) {
      case QEvent::ShortcutOverride:
      case QEvent::KeyPress:
        if (static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
          // The override is accepted so that the key press comes here, not
          // to a shortcut elsewhere; the press itself copies.
          event->accept();
          if (event->type() == QEvent::KeyPress) copy();
          return true;
        }
        break;
      case QEvent::ContextMenu: {
        QMenu menu(static_cast<QWidget*>(watched));
        menu.setObjectName(QStringLiteral("CopyMenu"));
        QAction* action = menu.addAction(ComponentStrings::getInstance()->string(QStringLiteral("copy")));
        action->setObjectName(QStringLiteral("CopyAction"));
        action->setEnabled(!text_().isEmpty());
        connect(action, &QAction::triggered, this, &CopyHandler::copy);
        menu.exec(static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
      }
      default:
        break;
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  void copy() {
    const QString text = text_();
    if (!text.isEmpty()) QGuiApplication::clipboard()->setText(text);
  }

  std::function<QString()> text_;
};

}  // namespace

QString plain_text(const QString& html) {
  QTextDocument doc;
  doc.setHtml(html);
  QString out = doc.toPlainText();
  out.replace(QChar::ParagraphSeparator, QLatin1Char('\n')).replace(QChar::LineSeparator, QLatin1Char('\n'));
  return out;
}

void enable_label(QLabel* label) {
  // Not selectable by keyboard: that would put the label into the tab
  // order of the buttons beside it. A click gives it the focus for Ctrl+C.
  label->setTextInteractionFlags(label->textInteractionFlags() | Qt::TextSelectableByMouse);
  new CopyHandler(label, [label] {
    if (label->hasSelectedText()) return plain_text(label->selectedText());
    if (!label->accessibleName().isEmpty()) return label->accessibleName();
    const bool rich = label->textFormat() == Qt::RichText ||
                      (label->textFormat() == Qt::AutoText && Qt::mightBeRichText(label->text()));
    return rich ? plain_text(label->text()) : label->text();
  });
}

void enable_rows(QTableWidget* table) {
  table->setSelectionMode(QAbstractItemView::ExtendedSelection);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  auto* handler = new CopyHandler(table, [table] {
    std::set<int> rows;
    for (const QModelIndex& index : table->selectionModel()->selectedIndexes()) rows.insert(index.row());
    QStringList lines;
    for (int row : rows) {
      QStringList cells;
      for (int c = 0; c < table->columnCount(); ++c) {
        const QTableWidgetItem* item = table->item(row, c);
        cells << (item ? item->data(kPlainRole).toString() : QString());
      }
      lines << cells.join(QLatin1Char('\t'));
    }
    return lines.join(QLatin1Char('\n'));
  });
  // A right click on a row reaches the table through its viewport.
  table->viewport()->installEventFilter(handler);
}

}  // namespace copyable_text
