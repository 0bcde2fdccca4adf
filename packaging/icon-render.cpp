// nimbra-icon-render: renders an SVG picture into the PNG sizes of an icon
// theme, at build time, so that the icons come from the same art as the
// agent's pictures and no extra tool is needed.
//
//   nimbra-icon-render <picture.svg> <theme folder> <icon name> <size>...
//
// writes <theme folder>/<size>x<size>/apps/<icon name>.png for every size.
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char** argv) {
  if (argc < 5) {
    std::fprintf(stderr, "usage: nimbra-icon-render <picture.svg> <theme folder> <icon name> <size>...\n");
    return 2;
  }
  // No display is needed to paint into an image.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  QSvgRenderer svg(QString::fromLocal8Bit(argv[1]));
  if (!svg.isValid()) {
    std::fprintf(stderr, "nimbra-icon-render: %s is not a picture that can be drawn\n", argv[1]);
    return 1;
  }
  const QString theme = QString::fromLocal8Bit(argv[2]);
  const QString name = QString::fromLocal8Bit(argv[3]);
  for (int i = 4; i < argc; ++i) {
    bool ok = false;
    const int size = QString::fromLocal8Bit(argv[i]).toInt(&ok);
    if (!ok || size < 8 || size > 1024) {
      std::fprintf(stderr, "nimbra-icon-render: '%s' is not an icon size\n", argv[i]);
      return 2;
    }
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
      QPainter p(&image);
      p.setRenderHint(QPainter::Antialiasing);
      p.setRenderHint(QPainter::SmoothPixmapTransform);
      svg.render(&p, QRectF(0, 0, size, size));
    }
    const QString folder = QString("%1/%2x%2/apps").arg(theme).arg(size);
    const QString file = folder + "/" + name + ".png";
    if (!QDir().mkpath(folder) || !image.save(file, "PNG")) {
      std::fprintf(stderr, "nimbra-icon-render: cannot write %s\n", file.toLocal8Bit().constData());
      return 1;
    }
  }
  return 0;
}
