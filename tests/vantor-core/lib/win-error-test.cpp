// Windows error codes to errno codes.
#include <gtest/gtest.h>

#include <ostream>

#include <cerrno>
#include <cstdint>

#include "vantor-core/lib/win-error.h"

namespace rex = ravel::exception;

namespace {

struct Row {
  std::uint32_t win;
  int err;
};
void PrintTo(const Row& c, std::ostream* os) {
  *os << "Windows error " << c.win << " -> errno " << c.err;
}

class TranslationTest : public ::testing::TestWithParam<Row> {};

TEST_P(TranslationTest, SetsErrnoAndReturnsIt) {
  errno = 0;
  EXPECT_EQ(GetParam().err, rex::translate_win_error(GetParam().win));
  EXPECT_EQ(GetParam().err, errno);
}

INSTANTIATE_TEST_SUITE_P(ListedRows, TranslationTest,
                         ::testing::Values(Row{2, 2}, Row{3, 2}, Row{161, 2}, Row{5, 13}, Row{12, 13},
                                           Row{16, 13}, Row{32, 13}, Row{82, 13}, Row{6, 9}, Row{8, 12},
                                           Row{14, 12}, Row{122, 12}, Row{19, 30}, Row{33, 140}, Row{998, 14},
                                           Row{999, 2}, Row{1011, 5}, Row{1012, 5}, Row{1013, 5},
                                           Row{1117, 5}, Row{1313, 13}, Row{1314, 13}, Row{1326, 13},
                                           Row{1327, 13}, Row{1328, 13}, Row{1329, 13}, Row{1330, 13},
                                           Row{1331, 13}, Row{1307, 22}, Row{1308, 22}, Row{1332, 22}));

INSTANTIATE_TEST_SUITE_P(UsualRows, TranslationTest,
                         ::testing::Values(Row{1, 22}, Row{4, 24}, Row{80, 17}, Row{183, 17}, Row{87, 22},
                                           Row{109, 32}, Row{112, 28}, Row{145, 41}, Row{193, 8},
                                           Row{1816, 12}));

INSTANTIATE_TEST_SUITE_P(Unknown, TranslationTest,
                         ::testing::Values(Row{0, 40}, Row{35, 40}, Row{1000, 40}, Row{1325, 40},
                                           Row{1333, 40}, Row{0xFFFFFFFFu, 40}, Row{0x80070005u, 40}));

}  // namespace
