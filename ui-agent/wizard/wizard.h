#pragma once
// The first-run wizard that links this device to a cloud account. It holds
// the welcome page and the summary page and the modal sheets that cover it
// while the agent waits for the browser sign-in or for the service, and
// asks whether to back up once the device is linked. It never
// talks to the service: the client manager sends every request and calls
// the operations below on each answer; the user's choices go out on the bus.

#include <json/value.h>

#include <QString>
#include <QWidget>

class NimbraLoadingFrame;
class QStackedWidget;
class SummaryPage;
class VellMessageSheet;
class WelcomePage;

class Wizard : public QWidget {
  Q_OBJECT
 public:
  explicit Wizard(QWidget* parent = nullptr);

  // Brings the window forward over other applications' windows.
  void bringToFront();
  void showWelcomePage();
  // Makes the summary current and loads it from the status store's content.
  void showSummaryPage();
  // The sign-in notice, modal: returns when the user presses OK or
  // closeSignInSheet() ends it. The sheet is created once and reused.
  void showSignInSheet();
  void closeSignInSheet();
  // The connecting frame, modal: returns the wait's exit code when
  // hideConnecting() (or showError()) stops it.
  int showConnecting();
  void hideConnecting();
  // Ends the connecting frame, then shows the message for `code` in an
  // error sheet and waits for the user.
  void showError(int code, const Json::Value& response = Json::Value());
  // Once the device is linked: whether to back up now ("OK") or not yet
  // ("Not Now", Escape), in a question sheet over the wizard.
  bool askBackupNow();

  WelcomePage* welcomePage() const { return welcome_; }
  SummaryPage* summaryPage() const { return summary_; }
  QStackedWidget* pageStack() const { return stack_; }
  // Null until first used.
  VellMessageSheet* signInSheet() const { return signIn_; }
  NimbraLoadingFrame* connectingFrame() const { return connecting_; }

  // The flags the window keeps: a dialog with title, system menu and close
  // button, no minimise or maximise.
  static Qt::WindowFlags windowFlagsOfWizard();

 signals:
  void sigCreateDevice(const QString& zid, const QString& sub_id, const QString& account_type);
  void sigGetAuthURL();

 public slots:
  void slotReviewSummaryDone();

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  // The sheet or frame that holds the wizard modal now, if any.
  QWidget* modalCover() const;

  QStackedWidget* stack_ = nullptr;
  WelcomePage* welcome_ = nullptr;
  SummaryPage* summary_ = nullptr;
  VellMessageSheet* signIn_ = nullptr;
  NimbraLoadingFrame* connecting_ = nullptr;
};
