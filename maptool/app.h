#pragma once

#include "data/application.h"

namespace tavrik {

// The tool's application object adds nothing to its base.
struct App : Class<App, Application> {
    static const ClassDefinition& definition();
};

}  // namespace tavrik
