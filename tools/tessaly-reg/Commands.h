#pragma once

#include "tools/tessaly-reg/Context.h"

/// The tool's commands; each gives the exit code.
namespace tessaly::reg {

int query(const Arguments& arguments, Context& context);
int add(const Arguments& arguments, Context& context);
int deleteKeyOrValue(const Arguments& arguments, Context& context);
int exportKey(const Arguments& arguments, Context& context);
int importFile(const Arguments& arguments, Context& context);

/// Works on the files alone.
int repair(const Arguments& arguments, Context& context);

}  // namespace tessaly::reg
