#pragma once

#include "files/results/layout.h"

namespace lumivex {

// Items of the layout that take more than a few lines; each walks its own.

void WalkSphereTable(LayoutWalk& walk);
void WalkMediumTable(LayoutWalk& walk);
void WalkSphereSource(LayoutWalk& walk);
void WalkMediumSource(LayoutWalk& walk);
void WalkSizes(LayoutWalk& walk);
void WalkRays(LayoutWalk& walk);
void WalkCoatedSphere(LayoutWalk& walk);
void WalkDew(LayoutWalk& walk);
void WalkProfile(LayoutWalk& walk);

/// A line that is read and written as a number: 1 for a tick.
void WalkTick(FileLines& lines, bool& ticked);

}  // namespace lumivex
