#pragma once

#include <QWidget>

#include "examples/showcase/window/Dialog.h"

/// The rows of a dialog as widgets.
namespace showcase {

/// A new widget for a row, without what stands in it.
QWidget* makeWidget(const Field& field);

/// Whether a row's label stands before its widget.
bool hasLabelBefore(const Field& field);

/// What stands in a row, to its widget and from it.
void show(const Field& field, QWidget& widget);
void read(Field& field, const QWidget& widget);

}  // namespace showcase
