#pragma once
// Message sheets: a small card with a picture for its type, a text, an
// informative text and a row of standard buttons, run modally in a nested
// event loop.
//
// As a sheet (a parent given and `sheet` true) the card is a child of the
// parent window, centred over it (cover the window with VellMask so the rest
// of it looks and acts disabled). Otherwise it is an application-modal
// dialog window of its own.

#include <QFrame>
#include <QList>
#include <QMap>
#include <QMessageBox>

class QBoxLayout;
class QEventLoop;
class QLabel;
class QPushButton;

class VellMessageSheet : public QFrame {
  Q_OBJECT
 public:
  enum MessageType { Notice = 1, Error = 2, Question = 3 };

  // `buttons` NoButton picks the type's default: Ok for notices and errors,
  // Discard and Apply for questions. Unknown types are shown as notices.
  explicit VellMessageSheet(int messageType, QWidget* parent = nullptr, bool sheet = true,
                            QMessageBox::StandardButtons buttons = QMessageBox::NoButton);
  ~VellMessageSheet() override;

  int messageType() const { return type_; }

  // `styleSheet`, when given, replaces the label's default look.
  void setText(const QString& text, const QString& styleSheet = QString());
  QString text() const;
  void setInformativeText(const QString& text, const QString& styleSheet = QString());
  QString informativeText() const;

  // Replaces the buttons. Affirmative buttons (Ok, Apply, Yes, Save, Retry)
  // are primary and come last; the others are secondary.
  void setStandardButtons(QMessageBox::StandardButtons buttons);
  QMessageBox::StandardButtons standardButtons() const;
  // The button for `which`, or nullptr when the sheet has none. Callers may
  // relabel, restyle and resize it.
  QPushButton* button(QMessageBox::StandardButton which) const;

  // Shows the sheet and runs a nested event loop until a button is pressed
  // (returns its QMessageBox::StandardButton), quit() is called or the sheet
  // is closed or destroyed (returns the value given to quit(), NoButton by
  // default). Escape presses the Cancel, Discard, No or Close button if the
  // sheet has one. A call while the sheet already runs returns NoButton.
  int exec();
  // Ends a running exec() with `result` and hides the sheet at once (exec()
  // returns when the code that called quit() under its loop returns);
  // without a running exec() it only hides the sheet.
  void quit(int result = QMessageBox::NoButton);
  bool isRunning() const { return loop_ != nullptr; }

  // Sheets whose exec() is running now, innermost last (tests and tools use
  // it to see and answer a sheet).
  static QList<VellMessageSheet*> runningSheets();

  // A test hook: the next exec() returns `answer` at once, without showing
  // the sheet (it still emits finished). Called again before that, the
  // answers are taken in the order given, one per exec().
  static void setNextAnswer(int answer);
  // Drops the answers no exec() has taken yet and tells how many there were.
  static int clearNextAnswers();

 signals:
  void buttonClicked(int which);
  void finished(int result);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void place();

  int type_;
  bool sheet_;
  QLabel* icon_ = nullptr;
  QLabel* text_ = nullptr;
  QLabel* informative_ = nullptr;
  QBoxLayout* buttonRow_ = nullptr;
  QMap<int, QPushButton*> buttons_;
  QEventLoop* loop_ = nullptr;
  int result_ = QMessageBox::NoButton;
};

// A modal warning box titled `title` showing `message`. `flag` is a set of
// QMessageBox::StandardButton values (0 gives OK). Returns the pressed button.
int showWarningMsg(const QString& title, const QString& message, QWidget* parent = nullptr, int flag = 0);
