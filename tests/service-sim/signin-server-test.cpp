// The sign-in page over real HTTP: the page, the form, the redirect back to
// the agent and the token that "get_token" then accepts.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSignalSpy>
#include <QTcpSocket>
#include <QUrlQuery>

#include "device-model.h"
#include "signin-server.h"
#include "sim-test-util.h"

namespace {

struct Response {
  int status = 0;
  QByteArray body;
  QByteArray location;
};

Response fetch(QNetworkAccessManager& nam, const QString& url, const QByteArray& post = QByteArray(),
               bool is_post = false) {
  QNetworkRequest request{QUrl(url)};
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
  QNetworkReply* reply = nullptr;
  if (is_post) {
    request.setHeader(QNetworkRequest::ContentTypeHeader, "application/x-www-form-urlencoded");
    reply = nam.post(request, post);
  } else {
    reply = nam.get(request);
  }
  QSignalSpy finished(reply, &QNetworkReply::finished);
  if (!reply->isFinished()) {
    EXPECT_TRUE(finished.wait(5000));
  }
  Response r;
  r.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  r.body = reply->readAll();
  r.location = reply->rawHeader("Location");
  reply->deleteLater();
  return r;
}

class SimSigninTest : public ::testing::Test {
 protected:
  SimSigninTest()
      : model_(simtest::quick_scenario(false), std::string(), std::string()),
        server_(model_, "kim@example.com") {}
  void SetUp() override { ASSERT_TRUE(server_.listen()); }

  sim::DeviceModel model_;
  sim::SigninServer server_;
  QNetworkAccessManager nam_;
};

TEST_F(SimSigninTest, PageHasTheAccountAndARealSignInButton) {
  EXPECT_TRUE(server_.url().startsWith("http://127.0.0.1:"));
  EXPECT_NE(server_.port(), 0);
  const Response r = fetch(nam_, server_.url());
  EXPECT_EQ(r.status, 200);
  EXPECT_TRUE(r.body.contains("<form method=\"post\" action=\"/signin\">"));
  EXPECT_TRUE(r.body.contains("<button id=\"signin\" type=\"submit\">Sign in</button>"));
  EXPECT_TRUE(r.body.contains("kim@example.com"));
}

TEST_F(SimSigninTest, SubmittingRedirectsToTheAgentWithAFreshTokenGetTokenAccepts) {
  QSignalSpy issued(&server_, &sim::SigninServer::tokenIssued);
  const Response r = fetch(nam_, server_.url(), "email=kim%40example.com&password=x", true);
  EXPECT_EQ(r.status, 302);
  const QByteArray prefix = "nimbrabackup://nimbrabackupprotocol?access_token=";
  ASSERT_TRUE(r.location.startsWith(prefix)) << r.location.constData();
  const std::string token = r.location.mid(prefix.size()).toStdString();
  EXPECT_GE(token.size(), 16u);
  ASSERT_EQ(issued.count(), 1);
  EXPECT_EQ(issued.at(0).at(0).toString().toStdString(), token);
  EXPECT_NE(fetch(nam_, server_.url(), "email=b", true).location, r.location);

  Json::Value get = simtest::request("get_token");
  get["token"] = token;
  EXPECT_TRUE(jsonx::get_bool(model_.handle(get), "success"));
  EXPECT_TRUE(jsonx::has(model_.handle(get), "error"));  // used up
}

TEST_F(SimSigninTest, OtherPathsAndMethodsAreRefused) {
  EXPECT_EQ(fetch(nam_, QStringLiteral("http://127.0.0.1:%1/admin").arg(server_.port())).status, 404);
  QNetworkRequest put{QUrl(server_.url())};
  QNetworkReply* reply = nam_.put(put, QByteArray("x"));
  QSignalSpy finished(reply, &QNetworkReply::finished);
  ASSERT_TRUE(finished.wait(5000));
  EXPECT_EQ(reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), 405);
  reply->deleteLater();
}

TEST_F(SimSigninTest, GarbageRequestLineGetsBadRequestAndServerGoesOn) {
  QTcpSocket socket;
  socket.connectToHost(QHostAddress::LocalHost, server_.port());
  ASSERT_TRUE(socket.waitForConnected(3000));
  socket.write("NONSENSE\r\n\r\n");
  QSignalSpy closed(&socket, &QTcpSocket::disconnected);
  ASSERT_TRUE(closed.wait(5000));
  EXPECT_TRUE(socket.readAll().startsWith("HTTP/1.1 400"));
  EXPECT_EQ(fetch(nam_, server_.url()).status, 200);
}

}  // namespace
