#include "tessaly/platform/keys/AccessRights.h"

namespace tessaly::platform {
namespace {

constexpr RegistryAccess kKeyWrite = 0x20006;
constexpr RegistryAccess kMaximumAllowed = 0x02000000;
constexpr RegistryAccess kGenericRead = 0x80000000;
constexpr RegistryAccess kGenericWrite = 0x40000000;
constexpr RegistryAccess kGenericExecute = 0x20000000;
constexpr RegistryAccess kGenericAll = 0x10000000;

/// Values, subkeys and links; deleting, and changing rights and owner.
constexpr RegistryAccess kNeedsWriting = 0x26 | 0x10000 | 0x40000 | 0x80000;

RegistryAccess withoutGeneric(RegistryAccess asked) {
  RegistryAccess access = asked & 0x001FFFFF;
  if ((asked & (kGenericRead | kGenericExecute)) != 0) access |= kKeyRead;
  if ((asked & kGenericWrite) != 0) access |= kKeyWrite;
  if ((asked & kGenericAll) != 0) access |= kKeyAllAccess;
  return access;
}

}  // namespace

bool asksForWriting(RegistryAccess asked) {
  return (withoutGeneric(asked) & kNeedsWriting) != 0 || (asked & kMaximumAllowed) != 0;
}

std::optional<RegistryAccess> grantedAccess(RegistryAccess asked, bool isWritable) {
  RegistryAccess access = withoutGeneric(asked);
  if ((access & kNeedsWriting) != 0 && !isWritable) return std::nullopt;
  if ((asked & kMaximumAllowed) != 0) access |= isWritable ? kKeyAllAccess : kKeyRead;
  return access;
}

}  // namespace tessaly::platform
