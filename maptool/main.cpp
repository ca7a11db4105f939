#include "maptool/initialize.h"
#include "maptool/start.h"
#include "maptool/version.h"

#include <tavrik/runtime.h>

#include <cstdlib>

int main() {
    tavrik::RuntimeInit();
    tavrik::RuntimeSetVersion(tavrik::maptool::kVersion);
    tavrik::initialize();
    tavrik::_Main();
    tavrik::finalize();
    std::exit(tavrik::RuntimeExit());
}
