// Wine's header, with the additional declarations that the standard library's file system functions use.
#pragma once
#include_next <winbase.h>

#define SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE 0x2
#define FILE_DISPOSITION_FLAG_DELETE 0x1
#define FILE_DISPOSITION_FLAG_POSIX_SEMANTICS 0x2
#define FILE_DISPOSITION_FLAG_IGNORE_READONLY_ATTRIBUTE 0x10
#define GetTempPath2W GetTempPathW  // Wine's kernel32 lacks it
typedef struct _FILE_ID_128 {
  BYTE Identifier[16];
} FILE_ID_128;
typedef struct _FILE_ID_INFO {
  ULONGLONG VolumeSerialNumber;
  FILE_ID_128 FileId;
} FILE_ID_INFO;
typedef struct _FILE_DISPOSITION_INFO_EX {
  DWORD Flags;
} FILE_DISPOSITION_INFO_EX;
