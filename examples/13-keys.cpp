// Keys below a key make a list, such as a tool's projects: it is read in the order of names, and goes with
// its key.

#include "examples/support/Print.h"
#include "tessaly/settings/CRegistry.h"

using examples::printLine;
using tessaly::CRegistry;
using tessaly::Long;
using tessaly::String;

namespace {

constexpr Long kCurrentUser = 2;
const String kProjects = u"Software\\Example Projects";

// The sub path stands behind the root path; the key is made when it is first written to.
void addProject(std::u16string_view name, std::u16string_view folder) {
  CRegistry project;
  project.root(kCurrentUser);
  project.rootPath(kProjects);
  project.subPath(name);
  project.SetString(u"Folder", folder);
}

void listProjects() {
  CRegistry projects;
  projects.root(kCurrentUser);
  projects.rootPath(kProjects);
  // Operations on keys are told the root and the whole path, whatever the object has.
  const Long count = projects.GetSubkeysNumber(kCurrentUser, kProjects).toLong();
  printLine(count, u" projects");
  for (Long i = 1; i <= count; ++i) {
    const String name = projects.GetSubKeyName(kCurrentUser, kProjects, i);
    projects.subPath(name);
    printLine(u"  ", name, u" in ", projects.GetString(u"Folder", u"?"));
  }
}

void removeProject(std::u16string_view name) {
  CRegistry().DeletePath(kCurrentUser, kProjects + u"\\" + String(name));
}

// A key with several subkeys goes, but the result says that it failed: they drop out of the count while they
// are deleted. Deleting from the last to the first goes well.
bool removeAll() {
  CRegistry projects;
  for (Long i = projects.GetSubkeysNumber(kCurrentUser, kProjects).toLong(); i >= 1; --i) {
    removeProject(projects.GetSubKeyName(kCurrentUser, kProjects, i));
  }
  return projects.DeletePath(kCurrentUser, kProjects).toLong() == 0;
}

}  // namespace

int main() {
  listProjects();
  addProject(u"website", u"/home/anna/www");
  addProject(u"Accounts", u"/home/anna/books");
  addProject(u"garden", u"/home/anna/plants");
  listProjects();

  removeProject(u"GARDEN");
  listProjects();

  printLine(removeAll() ? u"All are gone" : u"Some are left");
}
