// The Json module: the DOM, the reader and the writer.
#include "Modules/ModuleManager.h"

IMPLEMENT_MODULE(FDefaultModuleImpl, Json);
