// Renders the agent's screens to PNG contact sheets, offscreen.
//
//   nimbra-screen-gallery <out> <resource folder> [--scale S] [--lang L] [--only a,b] [--contrast high]
//
// Writes <out>/<L>/<S>x/*.png. The scale is the display scale the screens
// see through DPIinfo (their lengths and style sheets scale with it) and the
// application font grows with it, as on a high-DPI display. L is "eng" or one
// of the translation languages.

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QTranslator>

#include <cstdio>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "ui-agent/core/language-font.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/gallery/screen-gallery.h"
#include "widgets/component-strings.h"
#include "widgets/image-manager.h"
#include "widgets/style-manager.h"
#include "widgets/ui-path-manager.h"

namespace screen_gallery {
namespace {

struct Area {
  std::string name;
  RenderFn render;
};

std::vector<Area>& areas() {
  static std::vector<Area> list;
  return list;
}

double g_scale = 1.0;
QString g_language = QStringLiteral("eng");

}  // namespace

int add_area(const char* name, RenderFn render) {
  areas().push_back({name, render});
  return static_cast<int>(areas().size());
}

double scale() {
  return g_scale;
}
QString language() {
  return g_language;
}

}  // namespace screen_gallery

int main(int argc, char** argv) {
  using namespace screen_gallery;
  if (argc < 3) {
    std::fprintf(stderr,
                 "usage: %s <out> <resource folder> [--scale S] [--lang L] [--only a,b] [--contrast high]\n",
                 argv[0]);
    return 2;
  }
  std::vector<std::string> only;
  bool highContrast = false;
  for (int i = 3; i + 1 < argc; i += 2) {
    if (!std::strcmp(argv[i], "--scale")) {
      g_scale = QString::fromLocal8Bit(argv[i + 1]).toDouble();
      if (g_scale <= 0) g_scale = 1.0;
    } else if (!std::strcmp(argv[i], "--lang")) {
      g_language = QString::fromLocal8Bit(argv[i + 1]);
    } else if (!std::strcmp(argv[i], "--contrast")) {
      highContrast = !std::strcmp(argv[i + 1], "high");
    } else if (!std::strcmp(argv[i], "--only")) {
      for (const QString& a : QString::fromLocal8Bit(argv[i + 1]).split(QLatin1Char(',')))
        only.push_back(a.toStdString());
    }
  }
  qputenv("NIMBRA_UI_SCALE", QByteArray::number(g_scale));
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);

  const QString resources = QDir::cleanPath(QString::fromLocal8Bit(argv[2]));
  UIPathManager::getInstance()->setPath(QStringLiteral("resource_path"), resources);
  app.setStyleSheet(QStringLiteral("QLabel { color: #505A64; }"));
  ImageManager::getInstance()->initialize(0);
  StyleManager::getInstance()->initialize({resources + QStringLiteral("/agent.stylesheet"),
                                           resources + QStringLiteral("/component.business.stylesheet"),
                                           resources + QStringLiteral("/high-contrast.palette")});
  StyleManager::getInstance()->setHighContrast(highContrast);
  QTranslator translator;
  if (g_language != QLatin1String("eng")) {
    if (string_display::load_translation(translator, g_language))
      QCoreApplication::installTranslator(&translator);
    else
      std::fprintf(stderr, "no translation for '%s'; texts stay English\n", qPrintable(g_language));
  }
  ComponentStrings::getInstance()->installStrings(
      {{QStringLiteral("ok"), string_display::text(Str::btn_ok)},
       {QStringLiteral("cancel"), string_display::text(Str::btn_cancel)}});
  // 9 points as start-up sets it; the offscreen screen is 96 dpi, so the
  // point size carries the scale a high-DPI screen would give the font.
  language_font::install_font_substitutions();
  QFont font = language_font::application_font(g_language);
  font.setPointSizeF(9.0 * g_scale);
  app.setFont(font);

  gallery::g_out = QString::fromLocal8Bit(argv[1]) + QLatin1Char('/') + g_language + QLatin1Char('/') +
                   QString::number(g_scale) + QLatin1Char('x') +
                   (highContrast ? QStringLiteral("-high-contrast") : QString());
  QDir().mkpath(gallery::g_out);
  for (const Area& area : areas()) {
    if (!only.empty() && std::find(only.begin(), only.end(), area.name) == only.end()) continue;
    area.render();
  }
  return gallery::layoutFaults() == 0 ? 0 : 1;
}
