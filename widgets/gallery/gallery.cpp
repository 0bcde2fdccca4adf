// Renders contact sheets of the product's look to PNG files: every picture at
// 1x and 2x, the tray icons on light and dark panels, and the widgets in their
// states. Run offscreen: nimbra-gallery <output folder> [resource folder].

#include <QApplication>
#include <QDir>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QTextEdit>
#include <QTimer>
#include <QVBoxLayout>

#include <cstdio>
#include <functional>
#include <vector>

#include "widgets/gallery/gallery-kit.h"
#include "widgets/vell-widgets.h"

using namespace gallery;

namespace {

QImage pictureCell(const QString& name, qreal dpr, QSize size = QSize()) {
  QPixmap pix = ImageManager::getInstance()->pixmap(name, size, dpr);
  QImage img = pix.toImage();
  img.setDevicePixelRatio(1);
  // Shown at device size so the 2x column really shows 2x the pixels.
  return img;
}

void renderPictures() {
  std::vector<std::vector<Cell>> rows;
  std::vector<Cell> row;
  for (const QString& name : ImageManager::getInstance()->names()) {
    if (name.startsWith(QLatin1String("logo_tray_icn")) || name == QLatin1String("wz_ill_backup_agent"))
      continue;
    row.push_back({name + QStringLiteral(" 1x"), pictureCell(name, 1.0)});
    row.push_back({QStringLiteral("2x"), pictureCell(name, 2.0)});
    if (row.size() >= 8) {
      rows.push_back(row);
      row.clear();
    }
  }
  if (!row.empty()) rows.push_back(row);
  rows.push_back(
      {{QStringLiteral("wz_ill_backup_agent 1x"), pictureCell(QStringLiteral("wz_ill_backup_agent"), 1.0)},
       {QStringLiteral("2x"), pictureCell(QStringLiteral("wz_ill_backup_agent"), 2.0)}});
  save(sheet(QStringLiteral("Pictures at 1x and 2x"), rows, Qt::white, 120), QStringLiteral("pictures.png"));
}

void renderTray() {
  const QStringList states{"connect", "green", "blue", "red", "orange"};
  struct Panel {
    QString title;
    QColor bg;
    QString suffix;
  };
  const std::vector<Panel> panels{{"Light panel (\"_dark\" pictures)", QColor("#EEF1F4"), "_dark"},
                                  {"Dark panel (base pictures)", QColor("#1E2832"), ""},
                                  {"Black panel (base pictures)", QColor("#000000"), ""},
                                  {"White panel (\"_dark\" pictures)", QColor("#FFFFFF"), "_dark"}};
  std::vector<QImage> strips;
  for (const Panel& panel : panels) {
    std::vector<std::vector<Cell>> rows;
    for (int size : {16, 22, 32}) {
      std::vector<Cell> row;
      for (const QString& s : states)
        for (qreal dpr : {1.0, 2.0}) {
          const QString name = QStringLiteral("logo_tray_icn_") + s + panel.suffix;
          QImage img = pictureCell(name, dpr, QSize(size, size));
          row.push_back({QStringLiteral("%1 %2px%3").arg(s).arg(size).arg(dpr > 1 ? " @2x" : ""), img});
        }
      rows.push_back(row);
    }
    strips.push_back(sheet(panel.title, rows, panel.bg, 84));
  }
  int w = 0, h = 0;
  for (const auto& s : strips) {
    w = qMax(w, s.width());
    h += s.height();
  }
  QImage out(w, h, QImage::Format_ARGB32);
  out.fill(Qt::white);
  QPainter p(&out);
  int y = 0;
  for (const auto& s : strips) {
    p.fillRect(QRect(0, y, w, s.height()), s.pixel(1, 1));
    p.drawImage(0, y, s);
    y += s.height();
  }
  p.end();
  save(out, QStringLiteral("tray.png"));
}

template <typename Make>
std::vector<Cell> states(const QString& what, Make make, bool checkable = false) {
  std::vector<Cell> row;
  {
    QWidget* w = make();
    row.push_back({what + QStringLiteral(" normal"), grabWidget(w)});
    delete w;
  }
  {
    QWidget* w = make();
    row.push_back({QStringLiteral("hover"), grabWidget(w, false, true)});
    delete w;
  }
  {
    QWidget* w = make();
    row.push_back({QStringLiteral("focus"), grabWidget(w, true)});
    delete w;
  }
  {
    QWidget* w = make();
    w->setEnabled(false);
    row.push_back({QStringLiteral("disabled"), grabWidget(w)});
    delete w;
  }
  if (checkable) {
    QWidget* w = make();
    if (auto* b = find<QAbstractButton>(w)) b->setChecked(true);
    row.push_back({QStringLiteral("checked"), grabWidget(w)});
    delete w;
    w = make();
    if (auto* b = find<QAbstractButton>(w)) b->setChecked(true);
    w->setEnabled(false);
    row.push_back({QStringLiteral("checked disabled"), grabWidget(w)});
    delete w;
  }
  return row;
}

// A white card holding `inner`, like the places the widgets live in.
QWidget* card(QWidget* inner, int margin = 12) {
  auto* frame = new QFrame;
  frame->setObjectName("card");
  frame->setStyleSheet("QFrame#card { background: white; }");
  auto* l = new QVBoxLayout(frame);
  l->setContentsMargins(margin, margin, margin, margin);
  inner->setParent(frame);
  l->addWidget(inner);
  return frame;
}

void renderWidgets() {
  std::vector<std::vector<Cell>> rows;
  rows.push_back(states("VellButton kind 0", [] {
    auto* b = new VellButton(QStringLiteral("Save"), 0);
    b->setFixedSize(100, 32);
    return card(b);
  }));
  rows.push_back(states("VellButton kind 1", [] {
    auto* b = new VellButton(QStringLiteral("Cancel"), 1);
    b->setFixedSize(100, 32);
    return card(b);
  }));
  rows.push_back(states("nimbra_button", [] {
    auto* b = new QPushButton(QStringLiteral("Let's Start"));
    b->setStyleSheet(getStyleSheet("nimbra_button"));
    return card(b);
  }));
  rows.push_back(states("VellIconButton", [] {
    auto* w = new QWidget;
    auto* l = new QHBoxLayout(w);
    l->setContentsMargins(6, 6, 6, 6);
    auto* list = new VellIconButton(QStringLiteral("icn_list"), w);
    auto* close = new VellIconButton(QStringLiteral("wdheader_bt_close"), w);
    auto* user = new VellIconButton(w);
    user->setText("U");
    user->setStyleSheet(getStyleSheet("tray_user_icon"));
    user->setFixedSize(24, 24);
    user->setMenu(new QMenu(user));
    l->addWidget(list);
    l->addWidget(close);
    l->addWidget(user);
    return card(w, 0);
  }));
  rows.push_back(states(
      "VellCheckBox", [] { return card(new VellCheckBox(QStringLiteral("Limit upload speed"))); }, true));
  rows.push_back(states(
      "VellRadioButton", [] { return card(new VellRadioButton(QStringLiteral("Limit to"))); }, true));
  rows.push_back(states("LinkLabel", [] { return card(new LinkLabel(QStringLiteral("Terms of Service"))); }));
  rows.push_back(states("component.lineedit", [] {
    auto* e = new QLineEdit;
    e->setPlaceholderText(QStringLiteral("Minimum: 5; Maximum: 9,999"));
    e->setStyleSheet(getStyleSheet("lineedit_focus_green") + getStyleSheet("lineedit_disable_gray") +
                     getStyleSheet("component.lineedit"));
    e->setFixedWidth(200);
    return card(e);
  }));
  rows.push_back(states("VellTimeComboBox", [] {
    auto* c = new VellTimeComboBox;
    c->setEditable(true);
    c->setStyleSheet(getStyleSheet("editable_combobox"));
    for (int h = 0; h < 24; ++h) c->addItem(QStringLiteral("%1:00").arg(h, 2, 10, QLatin1Char('0')));
    c->setTimeText(QStringLiteral("7:30"));
    c->setFixedSize(200, 32);
    return card(c);
  }));
  rows.push_back(states("non_editable_combobox", [] {
    auto* c = new VellTimeComboBox;
    c->setStyleSheet(getStyleSheet("non_editable_combobox"));
    c->addItem(QStringLiteral("05:00 Next day"));
    c->setFixedSize(200, 32);
    return card(c);
  }));
  {
    std::vector<Cell> row;
    for (auto pair : {std::make_pair("tray_progressbar", 6200), std::make_pair("tray_usage_blue", 4000),
                      std::make_pair("tray_usage_red", 9700)}) {
      auto* bar = new QProgressBar;
      bar->setRange(0, 10000);
      bar->setValue(pair.second);
      bar->setTextVisible(false);
      bar->setFixedSize(172, 6);
      bar->setStyleSheet(getStyleSheet(pair.first));
      QWidget* c = card(bar);
      row.push_back({pair.first, grabWidget(c)});
      delete c;
    }
    rows.push_back(row);
  }
  {
    std::vector<Cell> row;
    auto* labels = new QWidget;
    auto* l = new QVBoxLayout(labels);
    for (const char* n :
         {"welcome_title", "tray_title", "tray_status_display", "tray_finish_time_display", "summary_label",
          "summary_value", "about_version", "log_widget_time", "component.lineedit_label"}) {
      auto* lab = new VellLabel(QString::fromLatin1(n));
      lab->setStyleSheet(getStyleSheet(n));
      l->addWidget(lab);
    }
    auto* elided =
        new VellLabel(QStringLiteral("A long label elided to its width, full text in the tool tip"));
    elided->setFixedWidth(220);
    elided->setElideMode(Qt::ElideRight);
    l->addWidget(elided);
    QWidget* c = card(labels);
    row.push_back({"labels", grabWidget(c)});
    delete c;
    rows.push_back(row);
  }
  save(sheet(QStringLiteral("Widgets and their states"), rows, QColor("#F3F5F8")),
       QStringLiteral("widgets.png"));
}

// A message sheet over a masked window, as the wizard shows it.
QImage sheetOverWindow(int type, const QString& text, const QString& info, bool relabel) {
  auto* window = new QWidget;
  window->setFixedSize(620, 300);
  window->setStyleSheet("background: white;");
  auto* l = new QVBoxLayout(window);
  auto* title = new QLabel(QStringLiteral("Protect your device with Nimbra Backup"), window);
  title->setStyleSheet(getStyleSheet("welcome_title"));
  title->setAlignment(Qt::AlignCenter);
  l->addWidget(title);
  auto* start = new QPushButton(QStringLiteral("Let's Start"), window);
  start->setStyleSheet(getStyleSheet("nimbra_button"));
  l->addWidget(start, 0, Qt::AlignCenter);
  window->show();
  auto* s = new VellMessageSheet(type, window, true);
  s->setFixedWidth(480);
  s->setText(text, getStyleSheet("wizard_text_17px_1E2832"));
  if (!info.isEmpty()) s->setInformativeText(info, getStyleSheet("wizard_informative_text_15px_1E2832"));
  if (relabel) {
    if (QPushButton* b = s->button(QMessageBox::Discard)) {
      b->setText(QStringLiteral("Not Now"));
      b->setStyleSheet(getStyleSheet("nimbra_button_normal"));
      b->setFixedSize(100, 32);
    }
    if (QPushButton* b = s->button(QMessageBox::Apply)) {
      b->setText(QStringLiteral("OK"));
      b->setStyleSheet(getStyleSheet("nimbra_button_2"));
      b->setFixedSize(100, 32);
    }
  } else if (QPushButton* b = s->button(QMessageBox::Ok)) {
    b->setStyleSheet(getStyleSheet("nimbra_button_2"));
    b->setFixedSize(100, 32);
  }
  VellMask::createMask(s, window, QColor(0, 0, 0, 20));
  QImage shot;
  // Grab while the sheet is up, from inside its nested loop, then close it.
  QTimer::singleShot(0, [window, s, &shot]() {
    shot = window->grab().toImage();
    s->quit(QMessageBox::NoButton);
  });
  s->exec();
  delete window;
  return shot;
}

void renderSheets() {
  std::vector<std::vector<Cell>> rows;
  rows.push_back(
      {{"type 1 notice (sign-in)",
        sheetOverWindow(1, QStringLiteral("Sign in on your browser"),
                        QStringLiteral("We've opened a new browser tab for you to sign in. Then, we will "
                                       "guide you to the next step."),
                        false)}});
  rows.push_back(
      {{"type 3 question (relabelled buttons)",
        sheetOverWindow(3,
                        QStringLiteral("You're all set for backup. Do you want to back up this device "
                                       "right now?"),
                        QString(), true)}});
  rows.push_back(
      {{"type 2 error",
        sheetOverWindow(2,
                        QStringLiteral("Internet connection error. Check your Internet connection and "
                                       "try again."),
                        QString(), false)}});
  {
    VellMessageSheet box(VellMessageSheet::Error, nullptr, false);
    box.setWindowTitle(QStringLiteral("Nimbra Backup"));
    box.setText(QStringLiteral("This application is already opened by another user."));
    QImage shot;
    QTimer::singleShot(0, [&box, &shot]() {
      shot = box.grab().toImage();
      box.quit();
    });
    box.exec();
    rows.push_back({{"showWarningMsg (a window of its own)", shot}});
  }
  save(sheet(QStringLiteral("Message sheets over a masked window"), rows, QColor("#F3F5F8")),
       QStringLiteral("sheets.png"));
}

// The tray pop-up and the welcome page put together from the named pieces.
void renderCompositions() {
  std::vector<std::vector<Cell>> rows;
  {
    auto* outer = new QWidget;
    outer->setObjectName("outer");
    outer->setStyleSheet("QWidget#outer { background: #E9EDF2; }");
    auto* ol = new QVBoxLayout(outer);
    ol->setContentsMargins(16, 16, 16, 16);
    auto* menu = new QFrame;
    menu->setObjectName("TrayMenu");
    menu->setStyleSheet(getStyleSheet("tray_menu"));
    menu->setFixedSize(400, 232);
    auto* v = new QVBoxLayout(menu);
    v->setContentsMargins(12, 10, 12, 12);
    auto* head = new QHBoxLayout;
    auto* logo = new QLabel;
    logo->setPixmap(ImageManager::getInstance()->pixmap("app_img", QSize(24, 24)));
    auto* title = new QLabel("Nimbra Backup");
    title->setStyleSheet(getStyleSheet("tray_title"));
    auto* list = new VellIconButton("icn_list");
    auto* user = new VellIconButton;
    user->setText("J");
    user->setStyleSheet(getStyleSheet("tray_user_icon"));
    user->setFixedSize(24, 24);
    head->addWidget(logo);
    head->addSpacing(8);
    head->addWidget(title);
    head->addStretch();
    head->addWidget(list);
    head->addSpacing(6);
    head->addWidget(user);
    v->addLayout(head);
    auto* div = new QFrame;
    div->setFrameShape(QFrame::HLine);
    div->setStyleSheet(getStyleSheet("hline_divider"));
    v->addWidget(div);
    auto* body = new QHBoxLayout;
    auto* pic = new QLabel;
    pic->setPixmap(ImageManager::getInstance()->pixmap("status_m_backing_up", QSize(48, 48)));
    body->addWidget(pic, 0, Qt::AlignTop);
    auto* col = new QVBoxLayout;
    auto* phase = new QLabel("Backing up...");
    phase->setStyleSheet(getStyleSheet("tray_status_display"));
    auto* finish = new QLabel("Estimated to finish at 14:20");
    finish->setStyleSheet(getStyleSheet("tray_finish_time_display"));
    auto* bar = new QProgressBar;
    bar->setRange(0, 10000);
    bar->setValue(4200);
    bar->setTextVisible(false);
    bar->setFixedSize(296, 6);
    bar->setStyleSheet(getStyleSheet("tray_progressbar"));
    auto* processed = new QLabel("12.4 GB of 29.6 GB    42%");
    col->addWidget(phase);
    col->addWidget(finish);
    col->addSpacing(6);
    col->addWidget(bar);
    col->addWidget(processed);
    body->addLayout(col);
    v->addLayout(body);
    v->addStretch();
    auto* box = new QFrame;
    box->setObjectName("BackupScheduleInfoWidget");
    box->setStyleSheet(
        "QFrame#BackupScheduleInfoWidget {border-radius: 4px; background-color: rgba(171,181,194,0.1);}");
    auto* bl = new QGridLayout(box);
    bl->addWidget(new QLabel("Last backup:"), 0, 0);
    bl->addWidget(new QLabel("2026/11/20 23:00"), 0, 1);
    bl->addWidget(new QLabel("Next backup:"), 1, 0);
    bl->addWidget(new QLabel("2026/11/21 23:00"), 1, 1);
    v->addWidget(box);
    ol->addWidget(menu);
    rows.push_back(
        {{"tray pop-up (tray_menu, tray_title, status_m_backing_up, tray_progressbar)", grabWidget(outer)}});
    delete outer;
  }
  {
    std::vector<Cell> row;
    for (const char* s : {"status_m_idle", "status_m_done", "status_m_cancel", "status_m_error"}) {
      auto* w = new QFrame;
      w->setObjectName("TrayMenu");
      w->setStyleSheet(getStyleSheet("tray_menu"));
      auto* l = new QHBoxLayout(w);
      auto* pic = new QLabel;
      pic->setPixmap(ImageManager::getInstance()->pixmap(s, QSize(48, 48)));
      auto* t = new QLabel(QString(s) == "status_m_idle"     ? "Ready"
                           : QString(s) == "status_m_done"   ? "Successful"
                           : QString(s) == "status_m_cancel" ? "Partially Successful"
                                                             : "Failed");
      t->setStyleSheet(getStyleSheet("tray_status_display"));
      l->addWidget(pic);
      l->addWidget(t);
      l->addStretch();
      w->setFixedWidth(260);
      row.push_back({s, grabWidget(w)});
      delete w;
    }
    rows.push_back(row);
  }
  {
    auto* page = new QWidget;
    page->setFixedSize(900, 540);
    page->setStyleSheet("background: white;");
    auto* v = new QVBoxLayout(page);
    v->setContentsMargins(80, 40, 80, 40);
    auto* ill = new QLabel;
    ill->setPixmap(getGlobalImage("wz_ill_backup_agent"));
    ill->setAlignment(Qt::AlignCenter);
    auto* title = new QLabel("Protect your device with Nimbra Backup");
    title->setStyleSheet(getStyleSheet("welcome_title"));
    title->setAlignment(Qt::AlignCenter);
    auto* intro = new QLabel(
        "<div style=\"line-height:24px;\">Nimbra Backup provides protection for the entire device. All data, "
        "applications, and system configurations will be backed up according to your schedules.</div>");
    intro->setWordWrap(true);
    intro->setAlignment(Qt::AlignCenter);
    intro->setStyleSheet(getStyleSheet("welcome_description"));
    auto* start = new QPushButton("Let's Start");
    start->setStyleSheet(getStyleSheet("nimbra_button"));
    v->addWidget(ill);
    v->addSpacing(16);
    v->addWidget(title);
    v->addWidget(intro);
    v->addSpacing(24);
    v->addWidget(start, 0, Qt::AlignCenter);
    v->addStretch();
    rows.push_back({{"welcome page (wz_ill_backup_agent, welcome_title, welcome_description, nimbra_button)",
                     grabWidget(page)}});
    delete page;
  }
  save(sheet(QStringLiteral("Pieces put together"), rows, QColor("#F3F5F8")),
       QStringLiteral("compositions.png"));
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  g_out = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::currentPath() + QStringLiteral("/gallery");
  QDir().mkpath(g_out);
  const QString resources = argc > 2
                                ? QString::fromLocal8Bit(argv[2])
                                : QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../resource");
  UIPathManager::getInstance()->setPath(QStringLiteral("resource_path"), resources);
  app.setStyleSheet(QStringLiteral("QLabel { color: #505A64; }"));
  QFont font(QStringLiteral("Arial"), 9);
  app.setFont(font);
  ImageManager::getInstance()->initialize(0);
  StyleManager::getInstance()->initialize({resources + QStringLiteral("/agent.stylesheet"),
                                           resources + QStringLiteral("/component.business.stylesheet")});
  renderPictures();
  renderTray();
  renderWidgets();
  renderSheets();
  renderCompositions();
  return 0;
}
