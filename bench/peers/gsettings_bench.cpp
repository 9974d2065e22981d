// GSettings with its memory and its keyfile backend, and one object for each path. What other processes write
// to the keyfile arrives with the main loop, so one contestant runs that before each read; the other
// one does not see such writes. With 200,000 values each change costs it a new reading of the whole file, and
// ten changes in a second are more than it can follow: it never comes to answer. The keyfile backend promises
// no durable writes and is not measured at them.

#include <gio/gio.h>
#include <gio/gsettingsbackend.h>

#include <map>
#include <memory>

#include "bench/Contestant.h"
#include "bench/Folder.h"

namespace tessaly::bench {
namespace {

struct Release {
  void operator()(void* object) const { g_object_unref(object); }
  void operator()(GSettingsSchema* schema) const { g_settings_schema_unref(schema); }
  void operator()(gchar* text) const { g_free(text); }
};
using Schema = std::unique_ptr<GSettingsSchema, Release>;
using Backend = std::unique_ptr<GSettingsBackend, Release>;
using Settings = std::unique_ptr<GSettings, Release>;
using Text = std::unique_ptr<gchar, Release>;

std::string lower(std::string name) {
  for (char& c : name) c = g_ascii_tolower(c);
  return name;
}

std::string schemaSource() {
  std::string source = "<schemalist><schema id='tool'>\n";
  for (std::size_t n = 0; n <= kMissing; ++n) {
    source += "<key name='" + lower(numberName(n)) + "' type='i'><default>-1</default></key>\n";
    source += "<key name='" + lower(textName(n)) + "' type='s'><default>''</default></key>\n";
  }
  return source + "</schema></schemalist>\n";
}

/// Compiled once for this process, in a folder of its own for each.
GSettingsSchema* schema() {
  static const Schema compiled = [] {
    const std::string folder = newFolder("gsettings/schemas-" + std::to_string(getpid())).string();
    writeFile(folder + "/tool.gschema.xml", schemaSource());
    runTool(TESSALY_COMPILE_SCHEMAS " '" + folder + "'");
    GSettingsSchemaSource* source =
        g_settings_schema_source_new_from_directory(folder.c_str(), nullptr, FALSE, nullptr);
    if (source == nullptr) fail("no schema for GSettings");
    Schema found(g_settings_schema_source_lookup(source, "tool", FALSE));
    g_settings_schema_source_unref(source);
    return found;
  }();
  return compiled.get();
}

Settings opened(GSettingsBackend* backend, std::size_t key) {
  const std::string path = '/' + lower(keyName(key, "/")) + '/';
  return Settings(g_settings_new_full(schema(), backend, path.c_str()));
}

std::string keyfile(const Store& store) {
  std::string file;
  for (std::size_t key = 0; key < store.keys; ++key) {
    file += '[' + lower(keyName(key, "/")) + "]\n";
    for (std::size_t n = 0; n < kNumbersOfKey; ++n) {
      file += lower(numberName(n)) + '=' + std::to_string(numberAt({key, n})) + '\n';
      file += lower(textName(n)) + "='" + textAt({key, n}) + "'\n";
    }
  }
  return file;
}

struct Keyfile {
  static constexpr const char* kKind = "GSettings keyfile";

  static Backend make(const Store& store) {
    const std::filesystem::path path = newFolder("gsettings") / store.name;
    if (!std::filesystem::exists(path)) writeFile(path, keyfile(store));
    return Backend(g_keyfile_settings_backend_new(path.c_str(), "/", nullptr));
  }
};

struct Memory {
  static constexpr const char* kKind = "GSettings memory";

  static Backend make(const Store& store) {
    Backend backend(g_memory_settings_backend_new());
    for (std::size_t key = 0; key < store.keys; ++key) {
      const Settings settings = opened(backend.get(), key);
      for (std::size_t n = 0; n < kNumbersOfKey; ++n) {
        g_settings_set_int(settings.get(), lower(numberName(n)).c_str(), numberAt({key, n}));
        g_settings_set_string(settings.get(), lower(textName(n)).c_str(), textAt({key, n}).c_str());
      }
    }
    return backend;
  }
};

/// Filling one and reading another takes its time, so all rounds share them.
template <class Kind>
GSettingsBackend* backendOf(const Store& store) {
  static std::map<std::string_view, Backend> backends;
  Backend& backend = backends[store.name];
  if (backend == nullptr) backend = Kind::make(store);
  return backend.get();
}

template <class Kind>
class Reader {
 public:
  static constexpr const char* kKind = Kind::kKind;

  Reader(const Store& store, const std::vector<Place>& places) {
    for (const Place& place : places) {
      Settings& settings = settings_[place.key];
      if (settings == nullptr) settings = opened(backendOf<Kind>(store), place.key);
      reads_.push_back({settings.get(), lower(numberName(place.value)), lower(textName(place.value))});
    }
  }

  Long number(std::size_t place) {
    return g_settings_get_int(reads_[place].settings, reads_[place].number.c_str());
  }
  Text text(std::size_t place) {
    return Text(g_settings_get_string(reads_[place].settings, reads_[place].text.c_str()));
  }
  static std::string plain(const Text& text) { return text.get(); }
  void write(std::size_t place, Long value) {
    g_settings_set_int(reads_[place].settings, reads_[place].number.c_str(), value);
  }

 private:
  struct Read {
    GSettings* settings;
    std::string number;
    std::string text;
  };
  std::map<std::size_t, Settings> settings_;
  std::vector<Read> reads_;
};

class Listening : public Reader<Keyfile> {
 public:
  using Reader::Reader;

  Long number(std::size_t place) {
    listen();
    return Reader::number(place);
  }
  Text text(std::size_t place) {
    listen();
    return Reader::text(place);
  }

 private:
  static void listen() {
    while (g_main_context_iteration(nullptr, FALSE) != FALSE) {
    }
  }
};

const Entry<Reader<Memory>> memory("GSettings memory",
                                   {.besideWriter = false, .writes = false, .writesOfMany = false});
const Entry<Reader<Keyfile>> deaf("GSettings keyfile",
                                  {.besideWriter = false, .writes = false, .writesOfMany = false});
const Entry<Listening> listening("GSettings keyfile, main loop run",
                                 {.besideWriterOfMany = false, .writes = false, .writesOfMany = false});

}  // namespace
}  // namespace tessaly::bench
