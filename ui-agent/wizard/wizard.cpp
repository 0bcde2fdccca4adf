#include "ui-agent/wizard/wizard.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "logging/logger.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/core/service-error-text.h"
#include "ui-agent/core/status-store.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/wizard/nimbra-loading-frame.h"
#include "ui-agent/wizard/summary-page.h"
#include "ui-agent/wizard/welcome-page.h"
#include "vantor-core/lib/json-access.h"
#include "widgets/accessible-text.h"
#include "widgets/dpi-info.h"
#include "widgets/image-manager.h"
#include "widgets/style-manager.h"
#include "widgets/vell-mask.h"
#include "widgets/vell-message-sheet.h"
#include "widgets/window-placement.h"

namespace {

using string_display::text;

const QColor kMaskColour(0, 0, 0, 20);

}  // namespace

Qt::WindowFlags Wizard::windowFlagsOfWizard() {
  return Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
}

Wizard::Wizard(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("Wizard"));
  // Once: bringing it to the front shows it again where the user left it.
  window_placement::centre_when_shown(this, true);
  stack_ = new QStackedWidget(this);
  stack_->setObjectName(QStringLiteral("WizardPages"));
  stack_->setContentsMargins(0, 0, 0, 0);
  welcome_ = new WelcomePage(this);
  summary_ = new SummaryPage(this);
  stack_->addWidget(welcome_);
  stack_->addWidget(summary_);
  stack_->setCurrentWidget(welcome_);

  auto* v = new QVBoxLayout(this);
  v->setContentsMargins(0, 0, 0, 0);
  v->setSpacing(0);
  v->addWidget(stack_);

  QPalette pal = palette();
  pal.setColor(QPalette::All, QPalette::Window, QColor(255, 255, 255, 255));
  setPalette(pal);
  setAutoFillBackground(true);

  connect(summary_, &SummaryPage::sigReviewSummaryDone, this, &Wizard::slotReviewSummaryDone);
  connect(this, &Wizard::sigCreateDevice, &GlobalConnecter::instance(), &GlobalConnecter::sigCreateDevice);

  setWindowTitle(text(Str::app_name));
  setWindowIcon(QIcon(getGlobalImage(QStringLiteral("app_img"))));
  setWindowFlags(windowFlagsOfWizard());
  // The wizard owns its size: 900 x 540.
  setFixedSize(DPIinfo::scaled(900), DPIinfo::scaled(540));
  setAccessibleName(text(Str::app_name));
  accessible_text::set_window_role(this, accessible_text::WindowRole::Frame);
}

void Wizard::bringToFront() {
  const Qt::WindowFlags forward = Qt::WindowStaysOnTopHint | Qt::BypassWindowManagerHint;
  setWindowFlags(windowFlags() | forward);
  show();
  setWindowFlags(windowFlags() & ~forward);
  // (Not Qt::WindowActive here: activate() asks for that where it may be asked.)
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  window_placement::activate(this);
}

void Wizard::showWelcomePage() {
  LOG_DEBUG(vlog::kDefaultComponent, "wizard: welcome page");
  stack_->setCurrentWidget(welcome_);
  welcome_->startButton()->setFocus(Qt::OtherFocusReason);
}

void Wizard::showSummaryPage() {
  LOG_DEBUG(vlog::kDefaultComponent, "wizard: summary page");
  stack_->setCurrentWidget(summary_);
  ServiceStatus status;
  Json::Value content;
  StatusStore::instance().getStatus(status, content);
  summary_->setSiteInfo(content);
}

void Wizard::showSignInSheet() {
  LOG_DEBUG(vlog::kDefaultComponent, "wizard: sign-in sheet");
  if (!signIn_) {
    signIn_ = new VellMessageSheet(VellMessageSheet::Notice, this, true);
    signIn_->setFixedSize(DPIinfo::scaled(480), DPIinfo::scaled(184));
    signIn_->setText(text(Str::title_wizard_sign_in),
                     getStyleSheet(QStringLiteral("wizard_text_17px_1E2832")));
    signIn_->setInformativeText(text(Str::desc_wizard_sign_in),
                                getStyleSheet(QStringLiteral("wizard_informative_text_15px_1E2832")));
    if (QPushButton* ok = signIn_->button(QMessageBox::Ok)) {
      ok->setStyleSheet(getStyleSheet(QStringLiteral("nimbra_button_2")));
      ok->setText(text(Str::btn_ok));
      ok->setFixedSize(DPIinfo::scaled(100), DPIinfo::scaled(32));
      ok->setAccessibleName(ok->text());
    }
    if (auto* box = qobject_cast<QBoxLayout*>(signIn_->layout()))
      box->setContentsMargins(DPIinfo::scaled(12), DPIinfo::scaled(12), DPIinfo::scaled(12),
                              DPIinfo::scaled(6));
    signIn_->setAccessibleName(text(Str::title_wizard_sign_in));
    VellMask::createMask(signIn_, this, kMaskColour);
  }
  signIn_->exec();
}

void Wizard::closeSignInSheet() {
  if (signIn_) signIn_->quit();
}

int Wizard::showConnecting() {
  if (!connecting_) {
    connecting_ = new NimbraLoadingFrame(this);
    QString label = text(Str::desc_wizard_connecting);
    // One no-break space after the text; the catalogue may carry it already.
    if (!label.endsWith(QChar(0x00A0))) label += QChar(0x00A0);
    connecting_->setText(label);
    const QSize icon(DPIinfo::scaled(16), DPIinfo::scaled(16));
    connecting_->setIcon(ImageManager::getInstance()->pixmap(QStringLiteral("icon_agent"), icon));
    VellMask::createMask(connecting_, this, kMaskColour);
  }
  return connecting_->startLoading();
}

void Wizard::hideConnecting() {
  if (connecting_) connecting_->stopLoading();
}

void Wizard::showError(int code, const Json::Value& response) {
  hideConnecting();
  const QString message = service_error_text::message(code, response);
  LOG_INFO(vlog::kDefaultComponent, "wizard shows error %d: %s", code,
           jsonx::masked_text(message.toStdString()).c_str());
  VellMessageSheet sheet(VellMessageSheet::Error, this, true);
  sheet.setFixedWidth(DPIinfo::scaled(480));
  // Error texts run to several lines: the sheet's plain body weight reads
  // better there than its bold title weight.
  sheet.setText(message, getStyleSheet(QStringLiteral("wizard_informative_text_15px_1E2832")) +
                             QStringLiteral("\nQLabel { font-weight: normal; }"));
  if (QPushButton* ok = sheet.button(QMessageBox::Ok)) {
    ok->setText(text(Str::btn_ok));
    ok->setFixedSize(DPIinfo::scaled(100), DPIinfo::scaled(32));
    ok->setAccessibleName(ok->text());
  }
  sheet.setAccessibleName(message);
  VellMask::createMask(&sheet, this, kMaskColour);
  sheet.exec();
}

bool Wizard::askBackupNow() {
  VellMessageSheet sheet(VellMessageSheet::Question, this, true, QMessageBox::Discard | QMessageBox::Apply);
  sheet.setFixedHeight(DPIinfo::scaled(158));
  sheet.setMaximumWidth(DPIinfo::scaled(480));
  VellMask::createMask(&sheet, this, kMaskColour);
  sheet.setText(text(Str::desc_backup_confirm));
  const QSize buttonSize(DPIinfo::scaled(100), DPIinfo::scaled(32));
  if (QPushButton* notNow = sheet.button(QMessageBox::Discard)) {
    notNow->setText(text(Str::btn_not_now));
    notNow->setStyleSheet(getStyleSheet(QStringLiteral("nimbra_button_normal")));
    notNow->setFixedSize(buttonSize);
  }
  if (QPushButton* ok = sheet.button(QMessageBox::Apply)) {
    ok->setText(text(Str::btn_ok));
    ok->setStyleSheet(getStyleSheet(QStringLiteral("nimbra_button_2")));
    ok->setFixedSize(buttonSize);
  }
  LOG_DEBUG(vlog::kDefaultComponent, "wizard: asking whether to back up now");
  const bool now = sheet.exec() == QMessageBox::Apply;
  sheet.quit();
  LOG_DEBUG(vlog::kDefaultComponent, "wizard: back up now: %s", now ? "yes" : "not now");
  return now;
}

void Wizard::slotReviewSummaryDone() {
  emit sigCreateDevice(summary_->siteCode(), summary_->subIdForSite(), summary_->accountType());
}

void Wizard::closeEvent(QCloseEvent* event) {
  QWidget::closeEvent(event);
  QCoreApplication::quit();
}

QWidget* Wizard::modalCover() const {
  const QList<VellMessageSheet*> running = VellMessageSheet::runningSheets();
  for (auto it = running.crbegin(); it != running.crend(); ++it)
    if ((*it)->parentWidget() == this && (*it)->isVisible()) return *it;
  if (connecting_ && connecting_->isVisible()) return connecting_;
  return nullptr;
}

bool Wizard::focusNextPrevChild(bool next) {
  // While a sheet or the connecting frame is up, Tab cycles inside it only:
  // the masked page under it must not take keys.
  QWidget* cover = modalCover();
  if (!cover) return QWidget::focusNextPrevChild(next);
  QList<QWidget*> chain;
  for (QWidget* w : cover->findChildren<QWidget*>())
    if ((w->focusPolicy() & Qt::TabFocus) && w->isVisibleTo(cover) && w->isEnabled()) chain << w;
  if (chain.isEmpty()) {
    cover->setFocus(Qt::TabFocusReason);
    return true;
  }
  int at = chain.indexOf(QApplication::focusWidget());
  at = at < 0 ? 0 : (at + (next ? 1 : chain.size() - 1)) % chain.size();
  chain.at(at)->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
}
