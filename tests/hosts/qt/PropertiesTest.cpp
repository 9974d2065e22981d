// The control's properties among Qt's: by C++ and by name, as the control's own table has them.

#include <gtest/gtest.h>

#include <QMetaProperty>
#include <QSignalSpy>
#include <algorithm>

#include "tessaly/controls/transparentBitmapTables.h"
#include "tessaly/hosts/qt/PictureButton.h"
#include "tessaly/hosts/qt/Pictures.h"
#include "tessaly/hosts/qt/Text.h"
#include "tests/controls/Figures.h"
#include "tests/support/Errors.h"

namespace tessaly::tests {
namespace {

using qt::PictureButton;
using qt::toQString;

QMetaProperty propertyOf(const PropertyRow& row) {
  const QMetaObject& meta = PictureButton::staticMetaObject;
  return meta.property(meta.indexOfProperty(toQString(row.name).toUtf8()));
}

int typeIdOf(ValueType type) {
  if (type == ValueType::TruthValue) return QMetaType::Bool;
  return type == ValueType::PictureObject ? QMetaType::QPixmap : QMetaType::Int;
}

QVariant toQVariant(const PropertyDefault& value) {
  if (const bool* truth = std::get_if<bool>(&value)) return *truth;
  if (const Long* number = std::get_if<Long>(&value)) return *number;
  return QPixmap();
}

/// Another value than the default.
QVariant otherThan(const PropertyDefault& value) {
  if (const bool* truth = std::get_if<bool>(&value)) return !*truth;
  if (const Long* number = std::get_if<Long>(&value)) return *number + 5;
  return qt::toPixmap(slope({6, 4}, 9));
}

QImage imageOf(const QVariant& value) {
  return value.value<QPixmap>().toImage().convertToFormat(QImage::Format_RGB32);
}

bool isKept(const PropertyRow& row) { return !row.bagKey.empty(); }

TEST(QtPropertiesTest, EachOfTheControlsStandsAmongThoseOfTheWidgetWithItsType) {
  for (const PropertyRow& row : kTransparentBitmapProperties) {
    const QMetaProperty property = propertyOf(row);
    ASSERT_TRUE(property.isValid()) << toQString(row.name).toStdString();
    EXPECT_EQ(property.metaType().id(), typeIdOf(row.type)) << property.name();
    EXPECT_EQ(property.isWritable(), isKept(row)) << property.name();
    EXPECT_EQ(property.enclosingMetaObject(), &PictureButton::staticMetaObject) << property.name();
  }
}

TEST(QtPropertiesTest, ANewOneHasTheControlsDefaults) {
  const PictureButton button;
  for (const PropertyRow& row : kTransparentBitmapProperties) {
    if (row.type == ValueType::PictureObject) continue;
    EXPECT_EQ(propertyOf(row).read(&button), toQVariant(row.defaultValue)) << propertyOf(row).name();
  }
  EXPECT_TRUE(button.Picture().isNull());
  EXPECT_TRUE(button.disabledPicture().isNull());
}

TEST(QtPropertiesTest, EachIsAssignedByItsNameAndToldByItsBagKey) {
  PictureButton button;
  const QSignalSpy told(&button, &PictureButton::PropertyChanged);
  QStringList keys;
  for (const PropertyRow& row : kTransparentBitmapProperties) {
    if (!isKept(row)) continue;
    const QVariant value = otherThan(row.defaultValue);
    ASSERT_TRUE(propertyOf(row).write(&button, value));
    keys.append(toQString(row.bagKey));
    if (row.type == ValueType::PictureObject) {
      EXPECT_EQ(imageOf(propertyOf(row).read(&button)), imageOf(value)) << propertyOf(row).name();
    } else {
      EXPECT_EQ(propertyOf(row).read(&button), value) << propertyOf(row).name();
    }
  }
  QStringList toldKeys;
  for (const auto& arguments : told) toldKeys.append(arguments.at(0).toString());
  EXPECT_EQ(toldKeys, keys);
}

TEST(QtPropertiesTest, ABagGivesTheSameButtonAgain) {
  PictureButton button;
  for (const PropertyRow& row : kTransparentBitmapProperties) {
    if (isKept(row)) propertyOf(row).write(&button, otherThan(row.defaultValue));
  }
  const PictureButton stored(button.save());
  for (const PropertyRow& row : kTransparentBitmapProperties) {
    if (!isKept(row)) continue;
    const QVariant value = propertyOf(row).read(&stored);
    const QVariant before = propertyOf(row).read(&button);
    const bool isPicture = row.type == ValueType::PictureObject;
    EXPECT_TRUE(isPicture ? imageOf(value) == imageOf(before) : value == before) << propertyOf(row).name();
  }
}

TEST(QtPropertiesTest, ABagThatIsNoneOfItsKindRaises) {
  PropertyBag bag;
  bag.WriteProperty(u"Picture", Variant(Long{3}), PictureReference());
  EXPECT_EQ(errorOf([&] { PictureButton button(bag); }), RuntimeError::TypeMismatch);
}

TEST(QtPropertiesTest, WhatAnAssignmentRaisesComesOutOfTheCall) {
  PictureButton button;
  EXPECT_EQ(errorOf([&] { button.withBorder(0x7FFFFFFF); }), RuntimeError::Overflow);
  EXPECT_EQ(button.withBorder(), 0x7FFFFFFF);
}

TEST(QtPropertiesTest, WhatItRaisesWhereQtAssignsGoesToTheErrorHandler) {
  PictureButton button;
  std::vector<Long> errors;
  button.setErrorHandler([&](const RuntimeError& error) { errors.push_back(error.number()); });
  EXPECT_TRUE(button.setProperty("withBorder", 0x7FFFFFFF));
  EXPECT_TRUE(button.property("resultPicture").value<QPixmap>().isNull());
  EXPECT_EQ(errors, (std::vector<Long>{RuntimeError::Overflow, RuntimeError::Overflow}));
}

TEST(QtPropertiesTest, AStyleSheetMayAssign) {
  PictureButton button;
  button.setStyleSheet(QStringLiteral("tessaly--qt--PictureButton { qproperty-withBorder: 3; }"));
  button.ensurePolished();
  EXPECT_EQ(button.withBorder(), 3);
}

TEST(QtPropertiesTest, TheButtonsEnabledIsTheControlsAndNotTheWidgets) {
  PictureButton button;
  button.setProperty("enabled", false);
  EXPECT_FALSE(button.enabled());
  EXPECT_TRUE(button.isEnabled());
  button.enabled(true);
  button.setEnabled(false);
  EXPECT_TRUE(button.enabled());
}

TEST(QtPropertiesTest, TheResultIsAPictureOfItsOwn) {
  PictureButton button;
  button.backcolor(0x0000FF);
  button.Picture(qt::toImage(ring({9, 7}, 30)));
  button.AddBitmap(qt::toImage(plain({2, 2}, 0x00FF00)), 8, kMagenta);
  const QImage result = button.resultPicture().toImage();
  EXPECT_EQ(result.size(), QSize(9, 7));
  EXPECT_EQ(result.pixelColor(8, 6), QColor(0, 255, 0));
  EXPECT_EQ(result.pixelColor(4, 3), QColor(255, 0, 0));
  EXPECT_EQ(button.resultPictureWithWidth(18, 0).size(), QSize(18, 7));
  button.ClearBitmaps();
  EXPECT_EQ(button.resultPicture().toImage().pixelColor(8, 6), QColor(0, 0, 0));
  EXPECT_EQ(imageOf(button.property("resultPicture")).size(), QSize(9, 7));
}

TEST(QtPropertiesTest, TheResultIsNotAssigned) {
  PictureButton button;
  EXPECT_FALSE(button.setProperty("resultPicture", QPixmap(2, 2)));
  EXPECT_EQ(errorOf([&] { button.control().resultPicture(nullptr); }),
            RuntimeError::PropertyNotSettableAtRunTime);
  button.setUserMode(false);
  EXPECT_FALSE(button.UserMode());
  EXPECT_EQ(errorOf([&] { button.control().resultPicture(nullptr); }), RuntimeError::PropertyReadOnly);
}

}  // namespace
}  // namespace tessaly::tests
