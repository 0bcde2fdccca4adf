#pragma once
// A combo box of times of day ("07:00", "23:00 Next day", ...). Every item
// starts with a five-character time "HH:MM"; whatever follows is decoration.
// When editable, the user may type a time that is not in the list ("7:30",
// "07:30", "0730"): it is kept as one extra item "HH:MM" + " " + custom text
// (for example "07:30 (Custom)") and selected, so timeText() gives "07:30".
// The custom item sits where its time falls in the list's own (possibly
// wrapping) order of times, so the list stays in time order; a new custom
// time replaces the previous one. Input that is no time puts back the
// previous selection. timeChanged() follows every change of the selected
// time, whether an item was picked or a custom time typed (relabelling the
// custom item keeps its index, so currentIndexChanged() alone misses it).

#include <QComboBox>

class VellTimeComboBox : public QComboBox {
  Q_OBJECT
 public:
  explicit VellTimeComboBox(QWidget* parent = nullptr);

  // The words shown after a typed time that is not in the list.
  void setCustomText(const QString& text);
  QString customText() const { return custom_; }

  // Selects the item whose time (first five characters) equals the time of
  // `text`; a valid time that no item has becomes the custom item (also on a
  // combo that is not editable). Returns false, changing nothing, when `text`
  // is no time of day.
  bool setTimeText(const QString& text);
  // The first five characters of the current text ("HH:MM").
  QString timeText() const;
  // True when the current item is the custom item.
  bool isCustomSelected() const;

  // "7:30", "07:30", "0730", "730" -> "07:30"; "" when not a time of day.
  static QString normalizeTime(const QString& text);

 signals:
  void timeChanged(const QString& time);

 private:
  void commitTypedText();
  int customIndex() const;
  // Selects `index` and drops a custom item other than it.
  void selectListed(int index);
  // Where a custom item of `time` keeps the list in time order.
  int customInsertIndex(const QString& time) const;
  void noteTime();

  QString lastTime_;
  bool quiet_ = false;

  QString custom_;
};
