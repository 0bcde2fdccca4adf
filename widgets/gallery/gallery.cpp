// Renders contact sheets of the product's look to PNG files: every picture at
// 1x and 2x, the tray icons on light and dark panels, and the widgets in their
// states, the message sheets. Run offscreen:
//   nimbra-gallery <output folder> [resource folder] [--only area,...]
// Areas: pictures, tray-icons, widgets, sheets; names it does not have are
// left to the screen gallery (scripts/gallery passes --only to both).

#include <QApplication>
#include <QDir>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
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

// A message sheet over a masked window of its own, with the buttons the
// sheet's type gives (the agent's real sheets, relabelled and in their
// windows, are in the screen gallery).
QImage sheetOverWindow(VellMessageSheet::MessageType type, const QString& text, const QString& info) {
  auto* window = new QWidget;
  window->setFixedSize(620, 300);
  window->setStyleSheet("background: white;");
  window->show();
  auto* s = new VellMessageSheet(type, window, true);
  s->setFixedWidth(480);
  s->setText(text, getStyleSheet("wizard_text_17px_1E2832"));
  if (!info.isEmpty()) s->setInformativeText(info, getStyleSheet("wizard_informative_text_15px_1E2832"));
  for (QPushButton* b : s->findChildren<QPushButton*>()) {
    const bool secondary = b == s->button(QMessageBox::Discard);
    b->setStyleSheet(getStyleSheet(secondary ? "nimbra_button_normal" : "nimbra_button_2"));
    b->setFixedSize(100, 32);
  }
  VellMask::createMask(s, window, QColor(0, 0, 0, 20));
  QImage shot;
  // Grab while the sheet is up, from inside its nested loop, then close it.
  QTimer::singleShot(0, [window, s, &shot]() {
    shot = grabShown(window);
    s->quit(QMessageBox::NoButton);
  });
  s->exec();
  delete window;
  return shot;
}

void renderSheets() {
  std::vector<std::vector<Cell>> rows;
  rows.push_back({{"Notice (type 1), with informative text",
                   sheetOverWindow(VellMessageSheet::Notice, QStringLiteral("A notice sheet"),
                                   QStringLiteral("The informative text goes below the text, in the "
                                                  "informative style, and wraps at the sheet's width."))}});
  rows.push_back(
      {{"Question (type 3)", sheetOverWindow(VellMessageSheet::Question,
                                             QStringLiteral("A question sheet: two buttons"), QString())}});
  rows.push_back(
      {{"Error (type 2)", sheetOverWindow(VellMessageSheet::Error,
                                          QStringLiteral("An error sheet with a text long enough to "
                                                         "wrap onto a second line"),
                                          QString())}});
  {
    VellMessageSheet box(VellMessageSheet::Error, nullptr, false);
    box.setWindowTitle(QStringLiteral("Gallery"));
    box.setText(QStringLiteral("An error sheet without a parent window."));
    QImage shot;
    QTimer::singleShot(0, [&box, &shot]() {
      shot = grabShown(&box);
      box.quit();
    });
    box.exec();
    rows.push_back({{"Error without a parent (a window of its own)", shot}});
  }
  save(sheet(QStringLiteral("Message sheets over a masked window"), rows, QColor("#F3F5F8")),
       QStringLiteral("sheets.png"));
}

struct Area {
  const char* name;
  void (*render)();
};
// The areas in the order they are rendered; `--only` picks some by name.
constexpr Area kAreas[] = {{"pictures", renderPictures},
                           {"tray-icons", renderTray},
                           {"widgets", renderWidgets},
                           {"sheets", renderSheets}};

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  QStringList args = QCoreApplication::arguments().mid(1);
  QStringList only;
  if (const int at = args.indexOf(QStringLiteral("--only")); at >= 0) {
    if (at + 1 < args.size()) only = args.at(at + 1).split(QLatin1Char(','), Qt::SkipEmptyParts);
    args.erase(args.begin() + at, args.begin() + std::min<int>(at + 2, args.size()));
  }
  g_out = !args.isEmpty() ? args.at(0) : QDir::currentPath() + QStringLiteral("/gallery");
  QDir().mkpath(g_out);
  const QString resources =
      args.size() > 1 ? args.at(1) : QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../resource");
  UIPathManager::getInstance()->setPath(QStringLiteral("resource_path"), resources);
  app.setStyleSheet(QStringLiteral("QLabel { color: #505A64; }"));
  QFont font(QStringLiteral("Arial"), 9);
  app.setFont(font);
  ImageManager::getInstance()->initialize(0);
  StyleManager::getInstance()->initialize({resources + QStringLiteral("/agent.stylesheet"),
                                           resources + QStringLiteral("/component.business.stylesheet")});
  for (const Area& area : kAreas) {
    if (only.isEmpty() || only.contains(QLatin1String(area.name))) area.render();
  }
  return layoutFaults() == 0 ? 0 : 1;
}
