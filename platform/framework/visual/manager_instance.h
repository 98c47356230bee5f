#pragma once

#include "visual/paint.h"

class CMFCVisualManager;

// The application's visual manager as the rooms below the managers see it: they draw through its virtual functions and
// need not know how one is made.
namespace visual {

/// Makes the manager that the host chose, or the default one. Null when it could not be made.
using ManagerMaker = CMFCVisualManager* (*)();

/// The managers' room says once, before anything is drawn, how its managers are made.
void SetManagerMaker(ManagerMaker maker);

/// The manager that stands now; null when none was made yet or it is gone. Makes none.
CMFCVisualManager* StandingManager();
/// The application's manager's table of colours at the display's scale, for what rooms below the managers draw without
/// a function of the manager's. Makes the manager where none stands.
Look CurrentLook();
/// Whoever makes or destroys the application's manager says so. It is not owned here.
void SetStandingManager(CMFCVisualManager* manager);

} // namespace visual
