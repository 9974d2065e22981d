#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>

#include "tools/tessaly-reg/Arguments.h"
#include "tools/tessaly-reg/Keys.h"

namespace tessaly::reg {

/// What a run of the tool can end with.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;
inline constexpr int kWrongUsage = 2;

/// A store, and the file that messages name.
struct NamedStore {
  std::shared_ptr<platform::KeyStore> store;
  std::filesystem::path file;
};

/// The key stores of a run.
struct Stores {
  NamedStore machine;
  NamedStore user;
  String userName;
};

/// What the tool sees of the outside.
struct Surroundings {
  std::ostream& out;
  std::ostream& errors;

  /// Asks somebody a question with yes or no; nothing where nobody is there.
  std::function<std::optional<bool>(const std::string& question)> ask;

  /// Gives the stores that a command line means.
  std::function<Stores(const Arguments& arguments)> openStores;
};

/// What a command works on.
struct Context {
  Context(const Surroundings& around, const Stores& opened)
      : out(around.out),
        errors(around.errors),
        ask(around.ask),
        stores(opened),
        keys(*opened.machine.store, *opened.user.store, opened.userName) {}

  std::ostream& out;
  std::ostream& errors;
  const std::function<std::optional<bool>(const std::string& question)>& ask;
  const Stores& stores;
  Keys keys;
};

}  // namespace tessaly::reg
