// {name} placeholders and byte sizes.
#include <gmock/gmock.h>

#include <QJsonArray>
#include <QJsonObject>

#include <limits>

#include "string-display.h"

using namespace string_display;

namespace {

QJsonObject object(std::initializer_list<QPair<QString, QJsonValue>> members) {
  return QJsonObject(members);
}

TEST(ExpandPlaceholders, TwoAdjacentWithAStringAndABool) {
  EXPECT_EQ(expand_placeholders(QStringLiteral("{a}{b}"), object({{"a", "x"}, {"b", true}})),
            QStringLiteral("<b>x</b><b>1</b>"));
  EXPECT_EQ(expand_placeholders(QStringLiteral("{b}"), object({{"b", false}})), QStringLiteral("<b>0</b>"));
}

TEST(ExpandPlaceholders, ClosingBraceFirstEndsTheScan) {
  EXPECT_EQ(expand_placeholders(QStringLiteral("x} {a}"), object({{"a", "v"}})), QStringLiteral("x} {a}"));
  // The scan also stops at a later stray "}" before the next "{".
  EXPECT_EQ(expand_placeholders(QStringLiteral("{a} } {b}"), object({{"a", "1"}, {"b", "2"}})),
            QStringLiteral("<b>1</b> } {b}"));
}

TEST(ExpandPlaceholders, UnclosedOrMissingBraces) {
  EXPECT_EQ(expand_placeholders(QStringLiteral("a {b"), object({{"b", "v"}})), QStringLiteral("a {b"));
  EXPECT_EQ(expand_placeholders(QStringLiteral("plain"), object({{"a", "v"}})), QStringLiteral("plain"));
  EXPECT_EQ(expand_placeholders(QString(), object({})), QString());
  EXPECT_EQ(expand_placeholders(QStringLiteral("{}"), object({{"", "e"}})), QStringLiteral("<b>e</b>"));
}

TEST(ExpandPlaceholders, ValuesAreNotScannedAgain) {
  const QJsonObject values = object({{"a", "%1 {b} %2"}, {"b", "y"}});
  EXPECT_EQ(expand_placeholders(QStringLiteral("{a}-{b}"), values),
            QStringLiteral("<b>%1 {b} %2</b>-<b>y</b>"));
  EXPECT_EQ(expand_placeholders(QStringLiteral("{a}"), object({{"a", "<b>}{"}})),
            QStringLiteral("<b><b>}{</b>"));
}

TEST(ExpandPlaceholders, TheSamePlaceholderTwice) {
  EXPECT_EQ(expand_placeholders(QStringLiteral("{a} and {a}"), object({{"a", "v"}})),
            QStringLiteral("<b>v</b> and <b>v</b>"));
}

struct NumberCase {
  double value;
  const char* shown;
};

class PlaceholderNumber : public ::testing::TestWithParam<NumberCase> {};

TEST_P(PlaceholderNumber, GeneralFormatSixDigits) {
  EXPECT_EQ(expand_placeholders(QStringLiteral("{n}"), object({{"n", GetParam().value}})),
            QStringLiteral("<b>%1</b>").arg(QLatin1String(GetParam().shown)));
}

INSTANTIATE_TEST_SUITE_P(Numbers, PlaceholderNumber,
                         ::testing::Values(NumberCase{0, "0"}, NumberCase{5, "5"}, NumberCase{-12, "-12"},
                                           NumberCase{0.5, "0.5"}, NumberCase{123456, "123456"},
                                           NumberCase{1234567, "1.23457e+06"},
                                           NumberCase{3.14159265, "3.14159"}, NumberCase{1e-7, "1e-07"}));

TEST(ExpandPlaceholders, OtherValueTypesAreEmpty) {
  const QJsonObject values =
      object({{"n", QJsonValue::Null}, {"arr", QJsonArray{1, 2}}, {"obj", QJsonObject{{"x", 1}}}});
  EXPECT_EQ(expand_placeholders(QStringLiteral("[{n}][{arr}][{obj}][{absent}]"), values),
            QStringLiteral("[<b></b>][<b></b>][<b></b>][<b></b>]"));
}

// --- sizes ------------------------------------------------------------------

struct SizeCase {
  quint64 bytes;
  bool decimal;
  const char* number;
  const char* unit;
};

void PrintTo(const SizeCase& c, std::ostream* os) {
  *os << c.bytes << (c.decimal ? " decimal" : " binary");
}

class FormatSize : public ::testing::TestWithParam<SizeCase> {};

TEST_P(FormatSize, NumberAndUnit) {
  const SizeCase& c = GetParam();
  const SizeText size = format_size(c.bytes, c.decimal);
  EXPECT_EQ(size.number, QLatin1String(c.number));
  EXPECT_EQ(size.unit, QLatin1String(c.unit));
  EXPECT_EQ(format_size_text(c.bytes, c.decimal), QLatin1String(c.number) + ' ' + QLatin1String(c.unit));
}

constexpr quint64 kKiB = 1024, kMiB = kKiB * 1024, kGiB = kMiB * 1024;

INSTANTIATE_TEST_SUITE_P(
    Binary, FormatSize,
    ::testing::Values(SizeCase{0, false, "0", "Bytes"}, SizeCase{999, false, "999", "Bytes"},
                      SizeCase{1000, false, "0.977", "KB"}, SizeCase{1024, false, "1", "KB"},
                      SizeCase{1536, false, "1.5", "KB"}, SizeCase{1023999, false, "1e+03", "KB"},
                      SizeCase{1024000, false, "0.977", "MB"},
                      SizeCase{kMiB * 1000 - 1, false, "1e+03", "MB"},
                      SizeCase{kMiB * 1000, false, "0.977", "GB"}, SizeCase{kGiB, false, "1", "GB"},
                      SizeCase{kGiB * 1000 - 1, false, "1e+03", "GB"},
                      SizeCase{kGiB * 1000, false, "0.977", "TB"}, SizeCase{kGiB * 1024, false, "1", "TB"},
                      SizeCase{std::numeric_limits<quint64>::max(), false, "1.68e+07", "TB"}));

INSTANTIATE_TEST_SUITE_P(
    Decimal, FormatSize,
    ::testing::Values(SizeCase{0, true, "0", "Bytes"}, SizeCase{999, true, "999", "Bytes"},
                      SizeCase{1000, true, "1", "KB"}, SizeCase{1536, true, "1.54", "KB"},
                      SizeCase{999999, true, "1e+03", "KB"}, SizeCase{1000000, true, "1", "MB"},
                      SizeCase{999999999, true, "1e+03", "MB"}, SizeCase{1000000000, true, "1", "GB"},
                      SizeCase{999999999999ULL, true, "1e+03", "GB"},
                      SizeCase{1000000000000ULL, true, "1", "TB"},
                      SizeCase{1500000000000000ULL, true, "1.5e+03", "TB"}));

}  // namespace
