#include "tessaly/controls/PropertyTable.h"

namespace tessaly {
namespace {

struct ToValue {
  PropertyValue operator()(std::monostate) const { return PictureReference(); }
  PropertyValue operator()(bool value) const { return Variant(value); }
  PropertyValue operator()(Long value) const { return Variant(value); }
  PropertyValue operator()(std::u16string_view value) const { return Variant(value); }
};

}  // namespace

PropertyValue defaultOf(const PropertyRow& row) { return std::visit(ToValue{}, row.defaultValue); }

PropertyValue readProperty(const PropertyBag& bag, const PropertyRow& row) {
  return bag.ReadProperty(row.bagKey, defaultOf(row));
}

void writeProperty(PropertyBag& bag, const PropertyRow& row, const PropertyValue& value) {
  bag.WriteProperty(row.bagKey, value, defaultOf(row));
}

}  // namespace tessaly
