#pragma once

namespace tavrik {

// Makes the application's objects and runs it until it quits. An exception that nothing else takes ends it here.
void _Main();

}  // namespace tavrik
