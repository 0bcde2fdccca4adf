#include "vantor-core/lib/win-error.h"

#include <cerrno>

namespace ravel::exception {
namespace {

// errno values in the C runtime's numbering (the same on every platform here,
// since they select exception classes, not host error texts).
enum : int {
  kENOENT = 2,
  kEIO = 5,
  kE2BIG = 7,
  kENOEXEC = 8,
  kEBADF = 9,
  kECHILD = 10,
  kEAGAIN = 11,
  kENOMEM = 12,
  kEACCES = 13,
  kEFAULT = 14,
  kEBUSY = 16,
  kEEXIST = 17,
  kEXDEV = 18,
  kENOTDIR = 20,
  kEINVAL = 22,
  kEMFILE = 24,
  kENOSPC = 28,
  kEROFS = 30,
  kEPIPE = 32,
  kENOTEMPTY = 41,
  kEWOULDBLOCK = 140,
  kUnknown = 40,
};

struct Row {
  std::uint32_t win;
  int err;
};

// Sorted by Windows code. The usual C runtime mapping, with the agent's own
// choices where they differ from it (12, 19, 33, 122, 998, 999, the registry,
// device and security rows).
constexpr Row kTable[] = {
    {1, kEINVAL},        // ERROR_INVALID_FUNCTION
    {2, kENOENT},        // ERROR_FILE_NOT_FOUND
    {3, kENOENT},        // ERROR_PATH_NOT_FOUND
    {4, kEMFILE},        // ERROR_TOO_MANY_OPEN_FILES
    {5, kEACCES},        // ERROR_ACCESS_DENIED
    {6, kEBADF},         // ERROR_INVALID_HANDLE
    {7, kENOMEM},        // ERROR_ARENA_TRASHED
    {8, kENOMEM},        // ERROR_NOT_ENOUGH_MEMORY
    {9, kENOMEM},        // ERROR_INVALID_BLOCK
    {10, kE2BIG},        // ERROR_BAD_ENVIRONMENT
    {11, kENOEXEC},      // ERROR_BAD_FORMAT
    {12, kEACCES},       // ERROR_INVALID_ACCESS
    {13, kEINVAL},       // ERROR_INVALID_DATA
    {14, kENOMEM},       // ERROR_OUTOFMEMORY
    {15, kENOENT},       // ERROR_INVALID_DRIVE
    {16, kEACCES},       // ERROR_CURRENT_DIRECTORY
    {17, kEXDEV},        // ERROR_NOT_SAME_DEVICE
    {18, kENOENT},       // ERROR_NO_MORE_FILES
    {19, kEROFS},        // ERROR_WRITE_PROTECT
    {20, kEACCES},       // ERROR_BAD_UNIT
    {21, kEACCES},       // ERROR_NOT_READY
    {22, kEACCES},       // ERROR_BAD_COMMAND
    {23, kEACCES},       // ERROR_CRC
    {24, kEACCES},       // ERROR_BAD_LENGTH
    {25, kEACCES},       // ERROR_SEEK
    {26, kEACCES},       // ERROR_NOT_DOS_DISK
    {27, kEACCES},       // ERROR_SECTOR_NOT_FOUND
    {28, kEACCES},       // ERROR_OUT_OF_PAPER
    {29, kEACCES},       // ERROR_WRITE_FAULT
    {30, kEACCES},       // ERROR_READ_FAULT
    {31, kEACCES},       // ERROR_GEN_FAILURE
    {32, kEACCES},       // ERROR_SHARING_VIOLATION
    {33, kEWOULDBLOCK},  // ERROR_LOCK_VIOLATION
    {34, kEACCES},       // ERROR_WRONG_DISK
    {36, kEACCES},       // ERROR_SHARING_BUFFER_EXCEEDED
    {39, kENOSPC},       // ERROR_HANDLE_DISK_FULL
    {53, kENOENT},       // ERROR_BAD_NETPATH
    {65, kEACCES},       // ERROR_NETWORK_ACCESS_DENIED
    {67, kENOENT},       // ERROR_BAD_NET_NAME
    {80, kEEXIST},       // ERROR_FILE_EXISTS
    {82, kEACCES},       // ERROR_CANNOT_MAKE
    {83, kEACCES},       // ERROR_FAIL_I24
    {87, kEINVAL},       // ERROR_INVALID_PARAMETER
    {89, kEAGAIN},       // ERROR_NO_PROC_SLOTS
    {108, kEACCES},      // ERROR_DRIVE_LOCKED
    {109, kEPIPE},       // ERROR_BROKEN_PIPE
    {112, kENOSPC},      // ERROR_DISK_FULL
    {114, kEBADF},       // ERROR_INVALID_TARGET_HANDLE
    {122, kENOMEM},      // ERROR_INSUFFICIENT_BUFFER
    {124, kEINVAL},      // ERROR_INVALID_LEVEL
    {128, kECHILD},      // ERROR_WAIT_NO_CHILDREN
    {129, kECHILD},      // ERROR_CHILD_NOT_COMPLETE
    {130, kEBADF},       // ERROR_DIRECT_ACCESS_HANDLE
    {131, kEINVAL},      // ERROR_NEGATIVE_SEEK
    {132, kEACCES},      // ERROR_SEEK_ON_DEVICE
    {145, kENOTEMPTY},   // ERROR_DIR_NOT_EMPTY
    {158, kEACCES},      // ERROR_NOT_LOCKED
    {161, kENOENT},      // ERROR_BAD_PATHNAME
    {164, kEAGAIN},      // ERROR_MAX_THRDS_REACHED
    {167, kEACCES},      // ERROR_LOCK_FAILED
    {170, kEBUSY},       // ERROR_BUSY
    {183, kEEXIST},      // ERROR_ALREADY_EXISTS
    {188, kENOEXEC},     // ERROR_INVALID_STARTING_CODESEG ...
    {189, kENOEXEC},     //
    {190, kENOEXEC},     //
    {191, kENOEXEC},     //
    {192, kENOEXEC},     //
    {193, kENOEXEC},     // ERROR_BAD_EXE_FORMAT
    {194, kENOEXEC},     //
    {195, kENOEXEC},     //
    {196, kENOEXEC},     //
    {197, kENOEXEC},     //
    {198, kENOEXEC},     //
    {199, kENOEXEC},     //
    {200, kENOEXEC},     //
    {201, kENOEXEC},     //
    {202, kENOEXEC},     // ... ERROR_INFLOOP_IN_RELOC_CHAIN
    {206, kENOENT},      // ERROR_FILENAME_EXCED_RANGE
    {215, kEAGAIN},      // ERROR_NESTING_NOT_ALLOWED
    {232, kEPIPE},       // ERROR_NO_DATA (pipe being closed)
    {267, kENOTDIR},     // ERROR_DIRECTORY
    {998, kEFAULT},      // ERROR_NOACCESS
    {999, kENOENT},      // ERROR_SWAPERROR
    {1011, kEIO},        // ERROR_CANTOPEN (registry)
    {1012, kEIO},        // ERROR_CANTREAD
    {1013, kEIO},        // ERROR_CANTWRITE
    {1117, kEIO},        // ERROR_IO_DEVICE
    {1307, kEINVAL},     // ERROR_INVALID_OWNER
    {1308, kEINVAL},     // ERROR_INVALID_PRIMARY_GROUP
    {1313, kEACCES},     // ERROR_NO_SUCH_PRIVILEGE
    {1314, kEACCES},     // ERROR_PRIVILEGE_NOT_HELD
    {1326, kEACCES},     // ERROR_LOGON_FAILURE
    {1327, kEACCES},     // ERROR_ACCOUNT_RESTRICTION
    {1328, kEACCES},     // ERROR_INVALID_LOGON_HOURS
    {1329, kEACCES},     // ERROR_INVALID_WORKSTATION
    {1330, kEACCES},     // ERROR_PASSWORD_EXPIRED
    {1331, kEACCES},     // ERROR_ACCOUNT_DISABLED
    {1332, kEINVAL},     // ERROR_NONE_MAPPED
    {1816, kENOMEM},     // ERROR_NOT_ENOUGH_QUOTA
};

constexpr bool sorted() {
  for (std::size_t i = 1; i < sizeof kTable / sizeof kTable[0]; ++i)
    if (kTable[i - 1].win >= kTable[i].win) return false;
  return true;
}
static_assert(sorted(), "the table is searched by halves: keep it sorted and free of duplicates");

}  // namespace

int errno_from_win_error(std::uint32_t win_error) {
  std::size_t lo = 0, hi = sizeof kTable / sizeof kTable[0];
  while (lo < hi) {
    const std::size_t mid = lo + (hi - lo) / 2;
    if (kTable[mid].win == win_error) return kTable[mid].err;
    if (kTable[mid].win < win_error)
      lo = mid + 1;
    else
      hi = mid;
  }
  return kUnknown;
}

int translate_win_error(std::uint32_t win_error) {
  const int e = errno_from_win_error(win_error);
  errno = e;
  return e;
}

}  // namespace ravel::exception
