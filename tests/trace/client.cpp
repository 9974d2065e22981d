// A client in a process of its own. It is told by lines what to do, and answers each with a line:
//
//   init NAME|LOG FILE|BACKUP FILE   a client of its own; "ready" and whether it is connected
//   send LEVEL TEXT                  a line by it; "sent" and the time, or "error" and the number
//   many COUNT WORD                  so many lines, "WORD 1" and so on; "sent" and the time
//   start                            StartLogger; "started" and whether there is a client
//   trace LEVEL TEXT                 a line by Trace; "sent" and the time, or "error" and the number
//   connected                        "yes", "no", or "none" where there is no client

#include <chrono>
#include <cstdio>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/base/Text.h"
#include "tessaly/trace/Trace.h"

namespace {

using tessaly::fromUtf8;
using tessaly::ZPLoggerClient;

std::unique_ptr<ZPLoggerClient> own;

std::string upTo(std::istream& words, char end) {
  std::string part;
  std::getline(words, part, end);
  return part;
}

std::string rest(std::istream& words) { return upTo(words >> std::ws, '\n'); }

std::string sent() {
  return "sent " + std::to_string(std::chrono::steady_clock::now().time_since_epoch().count());
}

std::string connected(const ZPLoggerClient* client) {
  if (client == nullptr) return "none";
  return client->Connected() ? "yes" : "no";
}

const ZPLoggerClient* present() { return own ? own.get() : tessaly::logger; }

void init(std::istream& words) {
  own = std::make_unique<ZPLoggerClient>();
  const std::string name = upTo(words >> std::ws, '|');
  const std::string logFile = upTo(words, '|');
  own->Init(fromUtf8(name), fromUtf8(logFile), fromUtf8(upTo(words, '\n')));
}

void sendMany(std::istream& words) {
  int count = 0;
  words >> count;
  const std::string word = rest(words);
  for (int i = 1; i <= count; ++i) {
    own->SendTrace(fromUtf8(word + ' ' + std::to_string(i)), 0, 0xFFFFFF, 0, tessaly::True);
  }
}

std::string answer(const std::string& word, std::istream& words) {
  if (word == "connected") return connected(present());
  if (word == "init") return init(words), "ready " + connected(own.get());
  if (word == "start") return tessaly::StartLogger(), "started " + connected(tessaly::logger);
  if (word == "many") return sendMany(words), sent();
  tessaly::Long level = 0;
  words >> level;
  const tessaly::String text = fromUtf8(rest(words));
  if (word == "trace") {
    tessaly::Trace(text, level);
  } else {
    own->SendTrace(text, 0, 0xFFFFFF, level, tessaly::True);
  }
  return sent();
}

}  // namespace

int main() {
  for (std::string line; std::getline(std::cin, line);) {
    std::istringstream words(line);
    std::string word;
    words >> word;
    try {
      std::cout << answer(word, words) << std::endl;
    } catch (const tessaly::RuntimeError& error) {
      std::cout << "error " << error.number() << std::endl;
    }
  }
}
