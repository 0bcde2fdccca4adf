#include "ui-agent/dialogs/about-window.h"

#include <QGraphicsDropShadowEffect>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>

#include <cmath>

#include "logging/logger.h"
#include "ui-agent/core/string-display.h"
#include "widgets/accessible-text.h"
#include "widgets/dpi-info.h"
#include "widgets/image-manager.h"
#include "widgets/style-manager.h"
#include "widgets/vell-button.h"
#include "widgets/vell-label.h"
#include "widgets/web-link.h"
#include "widgets/window-placement.h"

namespace {

using string_display::text;

QLabel* picture(const QString& name, QSize logical, QWidget* parent) {
  auto* l = new QLabel(parent);
  const QSize size(DPIinfo::scaled(logical.width()), DPIinfo::scaled(logical.height()));
  l->setFixedSize(size);
  l->setPixmap(ImageManager::getInstance()->pixmap(name, size));
  return l;
}

QLabel* centredLabel(const QString& content, const QString& sheet, QWidget* parent) {
  auto* l = new QLabel(content, parent);
  l->setStyleSheet(getStyleSheet(sheet));
  l->setAlignment(Qt::AlignCenter);
  l->setTextFormat(Qt::PlainText);
  return l;
}

}  // namespace

QString about_version_text() {
  return QStringLiteral("%1: %2.%3.%4-%5")
      .arg(text(Str::label_version), QStringLiteral("3"), QStringLiteral("6"), QStringLiteral("0"),
           QStringLiteral("0701"));
}

QString about_copyright_text() {
  return text(Str::desc_about_msg).arg(QStringLiteral("2024"));
}

std::optional<QPoint> about_drag_target(int pressX, int pressY, QPoint global, double scale) {
  if (pressX == 0 || pressY == 0) return std::nullopt;
  return QPoint(static_cast<int>(std::trunc(scale * (global.x() - pressX))),
                static_cast<int>(std::trunc(scale * (global.y() - pressY))));
}

QUrl AboutWindow::termsUrl() {
  return QUrl(QStringLiteral("https://www.nimbrabackup.com/legal/terms-of-service"));
}

QUrl AboutWindow::privacyUrl() {
  return QUrl(QStringLiteral("https://www.nimbrabackup.com/legal/privacy-statement"));
}

AboutWindow::AboutWindow(QWidget* parent) : QFrame(parent) {
  setObjectName(QStringLiteral("AboutWindow"));
  setStyleSheet(getStyleSheet(QStringLiteral("about_window")));
  setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
  setFixedSize(DPIinfo::scaled(480), DPIinfo::scaled(243));
  setWindowTitle(text(Str::app_name));
  setWindowIcon(QIcon(getGlobalImage(QStringLiteral("app_img"))));
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(text(Str::app_name));

  auto* shadow = new QGraphicsDropShadowEffect(this);
  shadow->setBlurRadius(12);
  shadow->setOffset(0, 0);
  shadow->setColor(QColor(0, 0, 0, 45));
  setGraphicsEffect(shadow);

  QLabel* icon = picture(QStringLiteral("icon_agent"), QSize(64, 64), this);
  icon->setObjectName(QStringLiteral("AboutIcon"));
  icon->setAccessibleName(text(Str::app_name));
  QLabel* badge = picture(QStringLiteral("icon_beta"), QSize(32, 16), this);
  badge->setObjectName(QStringLiteral("AboutBadge"));
  badge->setAccessibleName(QStringLiteral("Beta"));
  QLabel* name = centredLabel(text(Str::app_name), QStringLiteral("about_app_name"), this);
  name->setObjectName(QStringLiteral("AboutName"));
  name->setFixedHeight(DPIinfo::scaled(28));
  QLabel* version = centredLabel(about_version_text(), QStringLiteral("about_version"), this);
  version->setObjectName(QStringLiteral("AboutVersion"));

  auto* terms = new LinkLabel(text(Str::label_terms), this);
  terms->setObjectName(QStringLiteral("AboutTerms"));
  auto* privacy = new LinkLabel(text(Str::label_privacy_statements), this);
  privacy->setObjectName(QStringLiteral("AboutPrivacy"));
  for (LinkLabel* link : {terms, privacy}) {
    link->setStyleSheet(getStyleSheet(QStringLiteral("about_link_label")));
    link->setAccessibleName(link->text());
    connect(link, &LinkLabel::clicked, this, &AboutWindow::slotOpenBrowser);
  }
  links_.insert(terms, termsUrl());
  links_.insert(privacy, privacyUrl());
  terms->setToolTip(termsUrl().toString());
  privacy->setToolTip(privacyUrl().toString());

  auto* separator = new QFrame(this);
  separator->setObjectName(QStringLiteral("AboutSeparator"));
  separator->setFrameShape(QFrame::VLine);
  separator->setFrameShadow(QFrame::Plain);
  separator->setStyleSheet(QStringLiteral("QFrame { color: rgba(171,181,194,0.20);}"));
  separator->setFixedHeight(DPIinfo::scaled(12));

  QLabel* copyright = centredLabel(about_copyright_text(), QStringLiteral("about_version"), this);
  copyright->setObjectName(QStringLiteral("AboutCopyright"));

  close_ = new VellIconButton(this);
  close_->setObjectName(QStringLiteral("AboutClose"));
  close_->setImage(QStringLiteral("wdheader_bt_close"), QSize(DPIinfo::scaled(16), DPIinfo::scaled(16)));
  close_->setAccessibleName(text(Str::btn_close));
  close_->setToolTip(close_->accessibleName());
  connect(close_, &VellIconButton::clicked, this, &AboutWindow::sigCloseWindow);

  auto* v = new QVBoxLayout(this);
  v->setContentsMargins(DPIinfo::scaled(24), DPIinfo::scaled(8), DPIinfo::scaled(8), DPIinfo::scaled(18));
  v->setSpacing(0);
  auto* head = new QHBoxLayout;
  head->addStretch(1);
  head->addWidget(close_);
  v->addLayout(head);
  v->addWidget(icon, 0, Qt::AlignHCenter);
  v->addSpacing(DPIinfo::scaled(8));
  auto* nameRow = new QHBoxLayout;
  nameRow->setSpacing(DPIinfo::scaled(6));
  nameRow->addStretch(1);
  // The badge hangs off the name's right; an equal space on the left keeps
  // the name itself centred.
  nameRow->addSpacing(badge->width() + nameRow->spacing());
  nameRow->addWidget(name);
  nameRow->addWidget(badge, 0, Qt::AlignVCenter);
  nameRow->addStretch(1);
  v->addLayout(nameRow);
  v->addWidget(version);
  v->addSpacing(DPIinfo::scaled(10));
  auto* linkRow = new QHBoxLayout;
  linkRow->setSpacing(DPIinfo::scaled(12));
  linkRow->addStretch(1);
  linkRow->addWidget(terms);
  linkRow->addWidget(separator);
  linkRow->addWidget(privacy);
  linkRow->addStretch(1);
  v->addLayout(linkRow);
  v->addSpacing(DPIinfo::scaled(10));
  v->addWidget(copyright);
  v->addStretch(1);
}

void AboutWindow::slotOpenBrowser() {
  const auto* link = qobject_cast<const QWidget*>(sender());
  const QUrl url = links_.value(link);
  if (!url.isValid()) {
    LOG_WARN(vlog::kDefaultComponent, "about window: no address for the link clicked");
    return;
  }
  web_link::open(url.toString(), "about window link");
}

void AboutWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    // The card closes, and with it the window around it (which shows the
    // card again next time).
    close();
    emit sigCloseWindow();
    return;
  }
  event->ignore();
}

AboutWindowContainer::AboutWindowContainer(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("AboutWindowContainer"));
  window_placement::centre_when_shown(this);
  setAttribute(Qt::WA_TranslucentBackground);
  setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
  setWindowTitle(text(Str::app_name));
  setWindowIcon(QIcon(getGlobalImage(QStringLiteral("app_img"))));
  setAccessibleName(text(Str::app_name));
  accessible_text::set_window_role(this, accessible_text::WindowRole::Dialog);
  frame_ = new AboutWindow(this);
  auto* v = new QVBoxLayout(this);
  // Room for the card's shadow.
  const int m = DPIinfo::scaled(12);
  v->setContentsMargins(m, m, m, m);
  v->addWidget(frame_);
  connect(frame_, &AboutWindow::sigCloseWindow, this, &AboutWindowContainer::slotCloseWindow);
  setFocusProxy(frame_);
}

void AboutWindowContainer::slotCloseWindow() {
  hide();
}

void AboutWindowContainer::showEvent(QShowEvent* event) {
  frame_->show();
  QWidget::showEvent(event);
  frame_->setFocus(Qt::ActiveWindowFocusReason);
}

void AboutWindowContainer::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    pressX_ = event->x();
    pressY_ = event->y();
  }
  QWidget::mousePressEvent(event);
}

void AboutWindowContainer::mouseMoveEvent(QMouseEvent* event) {
  if (const auto to = about_drag_target(pressX_, pressY_, event->globalPos(), DPIinfo::getDPI())) move(*to);
  QWidget::mouseMoveEvent(event);
}
