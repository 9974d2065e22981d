#include "tools/tessaly-reg/Help.h"

namespace tessaly::reg {
namespace {

constexpr std::string_view kTool = R"(tessaly-reg shows and changes the settings that Tessaly's programs keep.

  tessaly-reg query  KEY [/v NAME | /ve] [/s] [/f PATTERN] [/t TYPE]
  tessaly-reg add    KEY [/v NAME | /ve] [/t TYPE] [/s SEPARATOR] [/d DATA] [/f]
  tessaly-reg delete KEY [/v NAME | /ve | /va] [/f]
  tessaly-reg export KEY FILE [/y]
  tessaly-reg import FILE [/n]
  tessaly-reg repair [FILE] [/n]

A KEY begins with HKEY_CURRENT_USER (HKCU), HKEY_LOCAL_MACHINE (HKLM),
HKEY_CLASSES_ROOT (HKCR), HKEY_USERS (HKU) or HKEY_CURRENT_CONFIG (HKCC). Put it
in quotes, or the shell takes the backslashes: 'HKCU\Software\My Tool'.
Commands, options and names may be in any case; options may begin with - too. A
FILE that looks like an option is written with its folder: ./-x.reg.

  --user FILE      work on this file in place of the user's own
  --machine FILE   work on this file in place of the machine's
  --help, /?       this text, or behind a command its own
  --version        the version

Examples:
  tessaly-reg query 'HKCU\Software' /s
  tessaly-reg add 'HKCU\Software\My Tool' /v Language /t REG_DWORD /d 1036
  tessaly-reg export 'HKCU\Software\My Tool' my-tool.reg

Exit codes: 0 done, 1 failed or nothing found, 2 the command line is wrong.
)";

constexpr std::string_view kQuery = R"(tessaly-reg query KEY [/v NAME | /ve] [/s] [/f PATTERN] [/t TYPE]

Shows the values of a key and the names of its subkeys.

  /v NAME      this value alone
  /ve          the unnamed value alone, which is shown as (Default)
  /s           all keys below too
  /f PATTERN   what has this text in a key's name, a value's name or its data,
               in any case; * stands for any characters and ? for one; up to
               1000 characters
  /t TYPE      values of this type alone, such as REG_SZ or REG_DWORD

The exit code is 1 where nothing is found.
)";

constexpr std::string_view kAdd =
    R"(tessaly-reg add KEY [/v NAME | /ve] [/t TYPE] [/s SEPARATOR] [/d DATA] [/f]

Makes a key with its parents, and sets a value in it.

  /v NAME        the value's name
  /ve            the unnamed value; also meant where data comes without a name
  /t TYPE        REG_SZ if not told
  /d DATA        REG_SZ, REG_EXPAND_SZ  text
                 REG_MULTI_SZ           texts with \0 or SEPARATOR between them
                 REG_DWORD, REG_QWORD   a number, decimal or as 0x2a
                 all others             bytes of two hexadecimal digits each
  /s SEPARATOR   stands between the texts of REG_MULTI_SZ
  /f             replaces a value without a question
)";

constexpr std::string_view kDelete = R"(tessaly-reg delete KEY [/v NAME | /ve | /va] [/f]

Deletes a key with all below it, or values of it.

  /v NAME   this value alone
  /ve       the unnamed value alone
  /va       all values of the key, but not the key
  /f        without a question
)";

constexpr std::string_view kExport = R"(tessaly-reg export KEY FILE [/y]

Writes a key and all below it into a .reg file, which Windows takes too. With -
as FILE it writes the same in UTF-8 to the standard output.

  /y   replaces a file that exists
)";

constexpr std::string_view kImport = R"(tessaly-reg import FILE [/n]

Brings a .reg file into the settings, all of it or, where anything in it is
wrong, nothing. Takes both forms, version 4 and 5.00, as Windows writes them or
in UTF-8, of up to 16 MiB. With - as FILE it reads the standard input.

  /n   says what would be done, and changes nothing
)";

constexpr std::string_view kRepair = R"(tessaly-reg repair [FILE] [/n]

Looks whether a file of settings is damaged, and puts what can be read of it
into a new one. The damaged file is kept, a sound file is left alone. Without
FILE it looks at the machine's and the user's.

  /n   says what is wrong and changes nothing; the exit code is 1 if anything is
)";

}  // namespace

std::string_view helpOf(Command command) {
  switch (command) {
    case Command::Query:
      return kQuery;
    case Command::Add:
      return kAdd;
    case Command::Delete:
      return kDelete;
    case Command::Export:
      return kExport;
    case Command::Import:
      return kImport;
    case Command::Repair:
      return kRepair;
    default:
      return kTool;
  }
}

}  // namespace tessaly::reg
