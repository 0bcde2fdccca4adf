#include "widgets/vell-time-combo-box.h"

#include <QLineEdit>
#include <QRegularExpression>
#include <QStyledItemDelegate>

#include "widgets/style-manager.h"

namespace {
constexpr int kCustomRole = Qt::UserRole + 41;
}

VellTimeComboBox::VellTimeComboBox(QWidget* parent) : QComboBox(parent), custom_(QStringLiteral("(Custom)")) {
  setInsertPolicy(QComboBox::NoInsert);
  setCursor(Qt::PointingHandCursor);
  // A plain delegate lets the style sheet draw the list's items.
  setItemDelegate(new QStyledItemDelegate(this));
  auto hookEditor = [this]() {
    if (QLineEdit* edit = lineEdit()) {
      disconnect(edit, &QLineEdit::editingFinished, this, nullptr);
      connect(edit, &QLineEdit::editingFinished, this, &VellTimeComboBox::commitTypedText);
    }
  };
  hookEditor();
  connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &VellTimeComboBox::noteTime);
  // setEditable() creates the line edit later; hook it when it appears.
  connect(this, &QComboBox::editTextChanged, this, [hookEditor](const QString&) { hookEditor(); });
}

void VellTimeComboBox::setCustomText(const QString& text) {
  custom_ = text;
  const int idx = customIndex();
  if (idx >= 0) {
    const QString time = itemText(idx).left(5);
    setItemText(idx, custom_.isEmpty() ? time : time + QLatin1Char(' ') + custom_);
  }
}

QString VellTimeComboBox::normalizeTime(const QString& text) {
  static const QRegularExpression colon(QStringLiteral("^\\s*(\\d{1,2}):(\\d{2})\\s*$"));
  static const QRegularExpression bare(QStringLiteral("^\\s*(\\d{1,2})(\\d{2})\\s*$"));
  auto m = colon.match(text);
  if (!m.hasMatch()) m = bare.match(text);
  if (!m.hasMatch()) return QString();
  const int hour = m.captured(1).toInt();
  const int minute = m.captured(2).toInt();
  if (hour > 23 || minute > 59) return QString();
  return QStringLiteral("%1:%2").arg(hour, 2, 10, QLatin1Char('0')).arg(minute, 2, 10, QLatin1Char('0'));
}

int VellTimeComboBox::customIndex() const {
  for (int i = 0; i < count(); ++i)
    if (itemData(i, kCustomRole).toBool()) return i;
  return -1;
}

bool VellTimeComboBox::isCustomSelected() const {
  return currentIndex() >= 0 && itemData(currentIndex(), kCustomRole).toBool();
}

QString VellTimeComboBox::timeText() const {
  return currentText().left(5);
}

bool VellTimeComboBox::setTimeText(const QString& text) {
  int listed = -1;
  QString time;
  // A full item text ("05:00 Next day") selects that item as it is.
  const int exact = findText(text, Qt::MatchExactly);
  if (exact >= 0 && !itemData(exact, kCustomRole).toBool()) {
    listed = exact;
  } else {
    time = normalizeTime(text.left(5).contains(QLatin1Char(':')) ? text.left(5) : text);
    if (time.isEmpty()) return false;
    for (int i = 0; i < count() && listed < 0; ++i)
      if (!itemData(i, kCustomRole).toBool() && itemText(i).left(5) == time) listed = i;
  }
  quiet_ = true;
  if (listed >= 0) {
    selectListed(listed);
  } else {
    const QString label = custom_.isEmpty() ? time : time + QLatin1Char(' ') + custom_;
    const int stale = customIndex();
    if (stale >= 0) removeItem(stale);
    const int idx = customInsertIndex(time);
    insertItem(idx, label);
    setItemData(idx, true, kCustomRole);
    setCurrentIndex(idx);
    if (isEditable()) setEditText(label);
  }
  quiet_ = false;
  noteTime();
  return true;
}

void VellTimeComboBox::selectListed(int index) {
  const int stale = customIndex();
  if (stale >= 0 && stale != index) {
    removeItem(stale);
    if (stale < index) --index;
  }
  setCurrentIndex(index);
  if (isEditable()) setEditText(itemText(index));
}

int VellTimeComboBox::customInsertIndex(const QString& time) const {
  auto minutes = [](const QString& t) { return t.left(2).toInt() * 60 + t.mid(3, 2).toInt(); };
  const int wanted = minutes(time);
  // The listed items run forward in time, possibly across midnight: the
  // custom time goes before the first item it does not come after.
  int previous = -1;
  for (int i = 0; i < count(); ++i) {
    const QString itemTime = normalizeTime(itemText(i).left(5));
    if (itemTime.isEmpty()) continue;
    const int m = minutes(itemTime);
    if (previous >= 0) {
      const int step = (m - previous + 1440) % 1440;
      if (step > 0 && (wanted - previous + 1440) % 1440 < step) return i;
    }
    previous = m;
  }
  return count();
}

void VellTimeComboBox::noteTime() {
  if (quiet_) return;
  const QString time = timeText();
  if (time == lastTime_) return;
  lastTime_ = time;
  emit timeChanged(time);
}

void VellTimeComboBox::commitTypedText() {
  if (!isEditable()) return;
  const QString typed = currentText();
  if (currentIndex() >= 0 && typed == itemText(currentIndex())) return;
  if (!setTimeText(typed)) setEditText(currentIndex() >= 0 ? itemText(currentIndex()) : QString());
}
