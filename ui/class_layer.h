#pragma once

namespace tavrik {

// Builds the records of all classes of the layer. A program calls this first, and then builds its own.
void initialize_class_layer();
// Gives up what the layer keeps between events; a program does it when it has ended.
void finalize_class_layer();

// Builds the records of these classes, which become the next ones of the class list. Each asks for its parent first.
template <class... Classes>
void build_classes() {
    (Classes::__ctblinit(), ...);
}

}  // namespace tavrik
