// QSettings with its native format, which is INI on Linux: a live object, which sees no other process's
// writes until it syncs; the same with a sync before each read; and a fresh object for each read. Their file
// is written by a rename, so a write costs as much as the whole file: with 200,000 values that is most of a
// second, and would disturb the disk for all who take turns with it, so it writes only with 200.

#include <QSettings>
#include <QString>
#include <QVariant>

#include "bench/Contestant.h"
#include "bench/Folder.h"

namespace tessaly::bench {
namespace {

QString keyOf(std::size_t key, const std::string& name) {
  return QString::fromStdString(keyName(key, "/") + '/' + name);
}

void fill(const QString& file, const Store& store) {
  QSettings settings(file, QSettings::NativeFormat);
  for (std::size_t key = 0; key < store.keys; ++key) {
    for (std::size_t n = 0; n < kNumbersOfKey; ++n) {
      settings.setValue(keyOf(key, numberName(n)), numberAt({key, n}));
      settings.setValue(keyOf(key, textName(n)), QString::fromStdString(textAt({key, n})));
    }
  }
}

QString fileOf(const Store& store) {
  const std::filesystem::path path = newFolder("qsettings") / (std::string(store.name) + ".conf");
  const QString file = QString::fromStdString(path.string());
  if (!std::filesystem::exists(path)) fill(file, store);
  return file;
}

class Settings {
 public:
  static constexpr const char* kKind = "QSettings";

  Settings(const Store& store, const std::vector<Place>& places) : file_(fileOf(store)) {
    for (const Place& place : places)
      names_.push_back({keyOf(place.key, numberName(place.value)), keyOf(place.key, textName(place.value))});
  }

  static std::string plain(const QString& text) { return text.toStdString(); }

 protected:
  struct Names {
    QString number;
    QString text;
  };

  const QString& file() const { return file_; }
  const Names& names(std::size_t place) const { return names_[place]; }

 private:
  QString file_;
  std::vector<Names> names_;
};

class Live : public Settings {
 public:
  Live(const Store& store, const std::vector<Place>& places)
      : Settings(store, places), live_(file(), QSettings::NativeFormat) {}

  Long number(std::size_t place) { return live_.value(names(place).number, kDefault).toInt(); }
  QString text(std::size_t place) { return live_.value(names(place).text).toString(); }
  void write(std::size_t place, Long value) {
    live_.setValue(names(place).number, value);
    live_.sync();
  }

 protected:
  QSettings& live() { return live_; }

 private:
  QSettings live_;
};
const Entry<Live> live("QSettings, live object",
                       {.besideWriter = false, .writes = false, .writesOfMany = false});

class Synced : public Live {
 public:
  using Live::Live;

  Long number(std::size_t place) {
    live().sync();
    return Live::number(place);
  }
  QString text(std::size_t place) {
    live().sync();
    return Live::text(place);
  }
};
const Entry<Synced> synced("QSettings, sync and value", {.writesOfMany = false});

class Fresh : public Settings {
 public:
  using Settings::Settings;

  Long number(std::size_t place) {
    return QSettings(file(), QSettings::NativeFormat).value(names(place).number, kDefault).toInt();
  }
  QString text(std::size_t place) {
    return QSettings(file(), QSettings::NativeFormat).value(names(place).text).toString();
  }
  void write(std::size_t place, Long value) {
    QSettings(file(), QSettings::NativeFormat).setValue(names(place).number, value);
  }
};
const Entry<Fresh> fresh("QSettings, fresh object",
                         {.random = false, .writes = false, .writesOfMany = false});

}  // namespace
}  // namespace tessaly::bench
