#pragma once

class QPainter;

/// What the cup of coffee stands in: a window with the morning in it, a table, and a fern on the sill.
void paintCoffeeRoom(QPainter& painter);
