#pragma once

#include <QSizeF>

class QPainter;

/// The drawings that rest the eyes, on a canvas of this size; the painter scales them to the window.
constexpr QSizeF sceneSize(1600, 1000);

void paintCoffee(QPainter& painter);
void paintBeach(QPainter& painter);
