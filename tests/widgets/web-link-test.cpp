// The one way links open: web addresses only, read tolerantly.
#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QLabel>

#include "web-link.h"

namespace {

struct LinkRow {
  const char* name;
  const char* address;
  const char* opened;  // what goes to the browser; "" when nothing does
};

void PrintTo(const LinkRow& r, std::ostream* os) {
  *os << r.name;
}

class WebLink : public ::testing::TestWithParam<LinkRow> {};

TEST_P(WebLink, OnlyHttpAndHttpsAddressesWithAHostOpen) {
  const QUrl url = web_link::parse(QString::fromUtf8(GetParam().address));
  EXPECT_EQ(url.isValid() ? url.toString(QUrl::FullyEncoded).toStdString() : std::string(),
            GetParam().opened);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WebLink,
    ::testing::Values(LinkRow{"https", "https://console.example/k?x=1", "https://console.example/k?x=1"},
                      LinkRow{"HttpUpperCase", "HTTP://Console.Example/", "http://console.example/"},
                      LinkRow{"PipeAndSpaceInSignIn", " https://s.example/a?r=x|y&n=a b ",
                              "https://s.example/a?r=x%7Cy&n=a%20b"},
                      LinkRow{"File", "file:///etc/passwd", ""}, LinkRow{"NoScheme", "/etc/passwd", ""},
                      LinkRow{"Javascript", "javascript:alert(1)", ""},
                      LinkRow{"Custom", "nimbrabackup://x", ""}, LinkRow{"NoHost", "https:///path", ""},
                      LinkRow{"Empty", "", ""}),
    [](const ::testing::TestParamInfo<LinkRow>& i) { return std::string(i.param.name); });

// Catches what would go to the desktop.
class Catcher : public QObject {
  Q_OBJECT
 public:
  QList<QUrl> urls;
 public slots:
  void open(const QUrl& url) { urls << url; }
};

TEST(WebLinkLabel, ALabelsLinksGoThroughTheCheck) {
  Catcher catcher;
  for (const char* scheme : {"file", "https"}) QDesktopServices::setUrlHandler(scheme, &catcher, "open");
  QLabel label;
  web_link::route(&label, "test link");
  EXPECT_FALSE(label.openExternalLinks());
  emit label.linkActivated(QStringLiteral("file:///etc/passwd"));
  emit label.linkActivated(QStringLiteral("https://console.example/"));
  for (const char* scheme : {"file", "https"}) QDesktopServices::unsetUrlHandler(scheme);
  ASSERT_EQ(catcher.urls.size(), 1);
  EXPECT_EQ(catcher.urls.first().host(), QStringLiteral("console.example"));
}

}  // namespace

#include "web-link-test.moc"
