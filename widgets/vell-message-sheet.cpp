#include "widgets/vell-message-sheet.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QGraphicsDropShadowEffect>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include "logging/logger.h"
#include "widgets/accessible-text.h"
#include "widgets/component-strings.h"
#include "widgets/copyable-text.h"
#include "widgets/dpi-info.h"
#include "widgets/image-manager.h"
#include "widgets/style-manager.h"
#include "widgets/vell-button.h"
#include "widgets/web-link.h"
#include "widgets/window-placement.h"

namespace {

QList<VellMessageSheet*>& running() {
  static QList<VellMessageSheet*> sheets;
  return sheets;
}

QList<int>& nextAnswers() {
  static QList<int> answers;
  return answers;
}

// Buttons in the order they are laid out, secondary first.
const QMessageBox::StandardButton kOrder[] = {
    QMessageBox::Close, QMessageBox::Discard, QMessageBox::No,    QMessageBox::Cancel,
    QMessageBox::Abort, QMessageBox::Ignore,  QMessageBox::Retry, QMessageBox::Apply,
    QMessageBox::Save,  QMessageBox::Yes,     QMessageBox::Ok,
};

bool isAffirmative(QMessageBox::StandardButton b) {
  return b == QMessageBox::Ok || b == QMessageBox::Apply || b == QMessageBox::Yes || b == QMessageBox::Save ||
         b == QMessageBox::Retry;
}

QString labelFor(QMessageBox::StandardButton b) {
  ComponentStrings* s = ComponentStrings::getInstance();
  switch (b) {
    case QMessageBox::Ok:
      return s->string(QStringLiteral("ok"));
    case QMessageBox::Cancel:
      return s->string(QStringLiteral("cancel"));
    case QMessageBox::Apply:
      return s->string(QStringLiteral("apply"));
    case QMessageBox::Discard:
      return s->string(QStringLiteral("discard"));
    case QMessageBox::Yes:
      return s->string(QStringLiteral("yes"));
    case QMessageBox::No:
      return s->string(QStringLiteral("no"));
    case QMessageBox::Close:
      return s->string(QStringLiteral("close"));
    case QMessageBox::Save:
      return s->string(QStringLiteral("save"));
    case QMessageBox::Retry:
      return s->string(QStringLiteral("retry"));
    case QMessageBox::Abort:
      return s->string(QStringLiteral("abort"));
    case QMessageBox::Ignore:
      return s->string(QStringLiteral("ignore"));
    default:
      return QString();
  }
}

QString pictureFor(int type) {
  switch (type) {
    case VellMessageSheet::Error:
      return QStringLiteral("icn_msg_error");
    case VellMessageSheet::Question:
      return QStringLiteral("icn_msg_question");
    default:
      return QStringLiteral("icn_imsg");
  }
}

}  // namespace

VellMessageSheet::VellMessageSheet(int messageType, QWidget* parent, bool sheet,
                                   QMessageBox::StandardButtons buttons)
    : QFrame(parent && sheet ? parent : nullptr), type_(messageType), sheet_(parent && sheet) {
  if (type_ != Notice && type_ != Error && type_ != Question) {
    LOG_WARN(vlog::kDefaultComponent, "unknown message type %d shown as a notice", type_);
    type_ = Notice;
  }
  setObjectName(QStringLiteral("VellMessageSheet"));
  setProperty("messageType", type_);
  setProperty("sheetWindow", !sheet_);
  setStyleSheet(getStyleSheet(QStringLiteral("component.message_sheet")));
  if (sheet_) {
    setAttribute(Qt::WA_StyledBackground);
    auto* shadow = new QGraphicsDropShadowEffect(this);
    shadow->setBlurRadius(24);
    shadow->setOffset(0, 4);
    shadow->setColor(QColor(0, 0, 0, 50));
    setGraphicsEffect(shadow);
    parent->installEventFilter(this);
  } else {
    // A window of its own: keep it above `parent` when one was given.
    if (parent) setParent(parent, Qt::Dialog);
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::CustomizeWindowHint);
    setWindowModality(Qt::ApplicationModal);
    setAttribute(Qt::WA_StyledBackground);
  }
  // A dialog to screen readers, also as a sheet over its window.
  accessible_text::set_window_role(this, accessible_text::WindowRole::Dialog);
  hide();

  const int s24 = DPIinfo::scaled(24);
  auto* root = new QVBoxLayout(this);
  root->setContentsMargins(s24, DPIinfo::scaled(20), s24, DPIinfo::scaled(16));
  root->setSpacing(0);

  auto* body = new QHBoxLayout;
  body->setSpacing(DPIinfo::scaled(12));
  icon_ = new QLabel(this);
  icon_->setObjectName(QStringLiteral("VellMessageSheetIcon"));
  icon_->setFixedSize(s24, s24);
  icon_->setPixmap(ImageManager::getInstance()->pixmap(pictureFor(type_), QSize(s24, s24)));
  body->addWidget(icon_, 0, Qt::AlignTop);

  auto* texts = new QVBoxLayout;
  texts->setSpacing(DPIinfo::scaled(6));
  text_ = new QLabel(this);
  text_->setObjectName(QStringLiteral("VellMessageSheetText"));
  text_->setWordWrap(true);
  text_->setTextInteractionFlags(Qt::TextBrowserInteraction);
  web_link::route(text_, "message sheet link");
  informative_ = new QLabel(this);
  informative_->setObjectName(QStringLiteral("VellMessageSheetInformativeText"));
  informative_->setWordWrap(true);
  informative_->setTextInteractionFlags(Qt::TextBrowserInteraction);
  web_link::route(informative_, "message sheet link");
  informative_->hide();
  copyable_text::enable_label(text_);
  copyable_text::enable_label(informative_);
  texts->addWidget(text_);
  texts->addWidget(informative_);
  texts->addStretch(1);
  body->addLayout(texts, 1);
  root->addLayout(body, 1);
  root->addSpacing(DPIinfo::scaled(16));

  buttonRow_ = new QHBoxLayout;
  buttonRow_->setSpacing(DPIinfo::scaled(8));
  buttonRow_->addStretch(1);
  root->addLayout(buttonRow_);

  if (buttons == QMessageBox::NoButton)
    buttons = type_ == Question ? (QMessageBox::Apply | QMessageBox::Discard) : QMessageBox::Ok;
  setStandardButtons(buttons);
  setMinimumWidth(DPIinfo::scaled(360));
  setMaximumWidth(DPIinfo::scaled(560));
}

VellMessageSheet::~VellMessageSheet() {
  running().removeAll(this);
  if (loop_) loop_->exit(QMessageBox::NoButton);
}

void VellMessageSheet::setText(const QString& text, const QString& styleSheet) {
  text_->setText(text);
  if (!styleSheet.isEmpty()) text_->setStyleSheet(styleSheet);
}

QString VellMessageSheet::text() const {
  return text_->text();
}

void VellMessageSheet::setInformativeText(const QString& text, const QString& styleSheet) {
  informative_->setText(text);
  informative_->setVisible(!text.isEmpty());
  if (!styleSheet.isEmpty()) informative_->setStyleSheet(styleSheet);
}

QString VellMessageSheet::informativeText() const {
  return informative_->text();
}

void VellMessageSheet::setStandardButtons(QMessageBox::StandardButtons buttons) {
  qDeleteAll(buttons_);
  buttons_.clear();
  for (QMessageBox::StandardButton which : kOrder) {
    if (!(buttons & which)) continue;
    auto* b = new VellButton(labelFor(which),
                             isAffirmative(which) ? VellButton::Primary : VellButton::Secondary, this);
    b->setObjectName(QStringLiteral("VellMessageSheetButton_%1").arg(static_cast<int>(which)));
    b->setProperty("standardButton", static_cast<int>(which));
    connect(b, &QPushButton::clicked, this, [this, which]() {
      emit buttonClicked(which);
      quit(which);
    });
    buttonRow_->addWidget(b);
    buttons_.insert(which, b);
  }
  if (buttons_.isEmpty() && buttons != QMessageBox::NoButton)
    LOG_WARN(vlog::kDefaultComponent, "message sheet given no button it knows (0x%x)",
             static_cast<unsigned>(buttons));
}

QMessageBox::StandardButtons VellMessageSheet::standardButtons() const {
  QMessageBox::StandardButtons out;
  for (int which : buttons_.keys()) out |= static_cast<QMessageBox::StandardButton>(which);
  return out;
}

QPushButton* VellMessageSheet::button(QMessageBox::StandardButton which) const {
  return buttons_.value(which);
}

QList<VellMessageSheet*> VellMessageSheet::runningSheets() {
  return running();
}

void VellMessageSheet::setNextAnswer(int answer) {
  nextAnswers().append(answer);
}

int VellMessageSheet::clearNextAnswers() {
  const int left = nextAnswers().size();
  nextAnswers().clear();
  return left;
}

int VellMessageSheet::exec() {
  if (loop_) {
    LOG_WARN(vlog::kDefaultComponent, "message sheet is already running, second exec ignored");
    return QMessageBox::NoButton;
  }
  if (!nextAnswers().isEmpty()) {
    const int answer = nextAnswers().takeFirst();
    emit finished(answer);
    return answer;
  }
  result_ = QMessageBox::NoButton;
  adjustSize();
  // Wrapped texts: take the height the texts need at the sheet's width,
  // unless the caller fixed the height.
  if (minimumHeight() != maximumHeight() && layout() && layout()->hasHeightForWidth())
    resize(width(), qBound(minimumHeight(), layout()->totalHeightForWidth(width()), maximumHeight()));
  place();
  show();
  if (sheet_)
    raise();
  else
    window_placement::activate(this);
  // The primary button takes the focus, so Return answers the sheet.
  QPushButton* primary = nullptr;
  for (auto it = buttons_.constEnd(); it != buttons_.constBegin();) {
    --it;
    if (isAffirmative(static_cast<QMessageBox::StandardButton>(it.key()))) {
      primary = it.value();
      break;
    }
  }
  if (primary) primary->setFocus();

  QEventLoop loop;
  loop_ = &loop;
  running().append(this);
  QPointer<VellMessageSheet> self(this);
  // While a sheet is up, keys are for it alone: when the focus lands on the
  // window under it (another sheet of the window hidden, the window shown
  // again and activated), it comes back to the sheet.
  QPointer<QPushButton> keeper(primary);
  const QMetaObject::Connection focus =
      connect(qApp, &QApplication::focusChanged, this, [this, keeper](QWidget*, QWidget* now) {
        if (!sheet_ || !now || !isVisible() || isAncestorOf(now) || now->window() != window()) return;
        if (running().isEmpty() || running().last() != this) return;
        if (keeper)
          keeper->setFocus(Qt::OtherFocusReason);
        else
          setFocus(Qt::OtherFocusReason);
      });
  const int rc = loop.exec(QEventLoop::DialogExec);
  if (!self) return QMessageBox::NoButton;  // destroyed while up
  disconnect(focus);
  running().removeAll(this);
  loop_ = nullptr;
  hide();
  emit finished(rc);
  return rc;
}

void VellMessageSheet::quit(int result) {
  result_ = result;
  if (loop_) loop_->exit(result);
  // At once: the loop returns only when the code running under it does, and
  // that code may open the next wait (the sign-in sheet is quit by the
  // message that goes on to show the connecting frame).
  hide();
}

void VellMessageSheet::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    // The buttons are no dialog's auto-default buttons, so Return arrives
    // here: it presses the focused button, else the primary one.
    for (QPushButton* b : buttons_)
      if (b->hasFocus() && b->isVisible()) {
        b->click();
        return;
      }
    for (auto it = buttons_.constEnd(); it != buttons_.constBegin();) {
      --it;
      if (isAffirmative(static_cast<QMessageBox::StandardButton>(it.key())) && it.value()->isVisible()) {
        it.value()->click();
        return;
      }
    }
  }
  if (event->key() == Qt::Key_Escape) {
    for (QMessageBox::StandardButton b :
         {QMessageBox::Cancel, QMessageBox::Discard, QMessageBox::No, QMessageBox::Close}) {
      if (buttons_.contains(b)) {
        buttons_.value(b)->click();
        return;
      }
    }
    if (buttons_.size() == 1) {
      buttons_.first()->click();
      return;
    }
    quit(QMessageBox::NoButton);
    return;
  }
  QFrame::keyPressEvent(event);
}

void VellMessageSheet::closeEvent(QCloseEvent* event) {
  if (loop_) quit(QMessageBox::NoButton);
  QFrame::closeEvent(event);
}

void VellMessageSheet::showEvent(QShowEvent* event) {
  QFrame::showEvent(event);
  place();
}

bool VellMessageSheet::eventFilter(QObject* watched, QEvent* event) {
  if (sheet_ && watched == parentWidget() && event->type() == QEvent::Resize && isVisible()) place();
  return QFrame::eventFilter(watched, event);
}

void VellMessageSheet::place() {
  if (sheet_ && parentWidget()) {
    const QRect area = parentWidget()->rect();
    move(area.center().x() - width() / 2, area.center().y() - height() / 2);
  } else if (QWidget* owner = parentWidget()) {
    const QRect area = owner->frameGeometry();
    move(area.center() - rect().center());
  }
}

int showWarningMsg(const QString& title, const QString& message, QWidget* parent, int flag) {
  LOG_WARN(vlog::kDefaultComponent, "warning shown: [%s] %s", qUtf8Printable(title), qUtf8Printable(message));
  const auto buttons =
      flag == 0 ? QMessageBox::StandardButtons(QMessageBox::Ok) : QMessageBox::StandardButtons(QFlag(flag));
  VellMessageSheet box(VellMessageSheet::Error, parent, false, buttons);
  box.setWindowTitle(title);
  box.setText(message);
  return box.exec();
}
