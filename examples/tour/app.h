#pragma once

#include "data/application.h"

namespace tavrik::tour {

// A window for each document, and one without a document when there is none.
struct App : Class<App, Application> {
    static const ClassDefinition& definition();

    void Event_NewDocument() { dispatch<&App::Event_NewDocument>(this); }
    void Event_OpenDocument(Arg<Object> item) { dispatch<&App::Event_OpenDocument>(this, item); }
};

}  // namespace tavrik::tour
