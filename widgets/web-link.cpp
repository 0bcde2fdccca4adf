#include "widgets/web-link.h"

#include <QDesktopServices>
#include <QLabel>

#include "logging/logger.h"

namespace web_link {

QUrl parse(const QString& address) {
  const QUrl url(address.trimmed(), QUrl::TolerantMode);
  const QString scheme = url.scheme();  // lower case once parsed
  if (!url.isValid() || (scheme != QLatin1String("https") && scheme != QLatin1String("http")) ||
      url.host().isEmpty())
    return QUrl();
  return url;
}

bool open(const QString& address, const char* what) {
  const QUrl url = parse(address);
  if (!url.isValid()) {
    LOG_ERROR(vlog::kDefaultComponent, "%s: not a web address, not opened", what);
    return false;
  }
  if (!QDesktopServices::openUrl(url)) {
    LOG_WARN(vlog::kDefaultComponent, "%s: the desktop could not open the address", what);
    return false;
  }
  return true;
}

void route(QLabel* label, const char* what) {
  label->setOpenExternalLinks(false);
  QObject::connect(label, &QLabel::linkActivated, label, [what](const QString& link) { open(link, what); });
}

}  // namespace web_link
