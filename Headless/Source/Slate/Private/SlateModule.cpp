// The Slate module: the widget library and the application that lays out and paints windows.
#include "Modules/ModuleManager.h"
IMPLEMENT_MODULE(FDefaultModuleImpl, Slate);
