// The sign-in server's own limits over real HTTP: what it refuses and when it
// drops a connection. (The page, the form and the redirect back to the agent
// are played by every first-run story of the desktop tests.)
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSignalSpy>
#include <QTcpSocket>

#include "service-sim/device-model.h"
#include "service-sim/signin-server.h"
#include "tests/service-sim/sim-test-util.h"

namespace {

class SimSigninTest : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(server_.listen()); }
  // The HTTP status of one request with `verb` (redirects are not followed).
  int fetch(const QByteArray& verb, const QString& path = "/signin", const QByteArray& body = {}) {
    QNetworkRequest request{QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(server_.port()).arg(path))};
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setHeader(QNetworkRequest::ContentTypeHeader, "application/x-www-form-urlencoded");
    QNetworkReply* reply = nam_.sendCustomRequest(request, verb, body);
    QSignalSpy finished(reply, &QNetworkReply::finished);
    EXPECT_TRUE(reply->isFinished() || finished.wait(5000));
    reply->deleteLater();
    return reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  }

  sim::DeviceModel model_{simtest::quick_scenario(false), std::string(), std::string()};
  sim::SigninServer server_{model_, "kim@example.com"};
  QNetworkAccessManager nam_;
};

TEST_F(SimSigninTest, OtherPathsMethodsAndGarbageAreRefusedAndServingGoesOn) {
  EXPECT_EQ(fetch("GET", "/admin"), 404);
  EXPECT_EQ(fetch("PUT", "/signin", "x"), 405);
  QTcpSocket socket;
  socket.connectToHost(QHostAddress::LocalHost, server_.port());
  ASSERT_TRUE(socket.waitForConnected(3000));
  socket.write("NONSENSE\r\n\r\n");
  QSignalSpy closed(&socket, &QTcpSocket::disconnected);
  ASSERT_TRUE(closed.wait(5000));
  EXPECT_TRUE(socket.readAll().startsWith("HTTP/1.1 400"));
  EXPECT_EQ(fetch("GET"), 200);
}

TEST_F(SimSigninTest, UnfinishedConnectionsAreDroppedAfterTheIdleTime) {
  server_.setIdleTimeoutMs(300);
  QTcpSocket silent, half;
  for (QTcpSocket* s : {&silent, &half}) {
    s->connectToHost(QHostAddress::LocalHost, server_.port());
    ASSERT_TRUE(s->waitForConnected(3000));
  }
  half.write("GET /signin HTTP/1.1\r\nHost: x\r\n");  // the blank line never comes
  half.flush();
  QSignalSpy silentClosed(&silent, &QTcpSocket::disconnected), halfClosed(&half, &QTcpSocket::disconnected);
  ASSERT_TRUE(silentClosed.wait(5000));
  ASSERT_TRUE(halfClosed.count() == 1 || halfClosed.wait(5000));
  EXPECT_EQ(server_.pendingConnections(), 0);
  EXPECT_EQ(fetch("GET"), 200) << "a real browser is still served";
}

}  // namespace
