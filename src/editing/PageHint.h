// What a page of checks says while there is nothing on it to see.
#pragma once

class QPainter;
class QRect;

enum class PageHint { NoChecks, NoneOfThisGroup };

// In the middle of `area`, with an arrow towards the catalogue bar at its left.
void PaintPageHint(QPainter& painter, const QRect& area, PageHint hint);
