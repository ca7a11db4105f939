#pragma once

namespace tavrik {

// Builds the records of all classes, and what all windows share.
void initialize();
// Releases what is global.
void finalize();

}  // namespace tavrik
