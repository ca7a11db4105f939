#pragma once

#include <tavrik/object.h>

#include <vector>

namespace tavrik::core {

// The objects that the event loop asks, one after the other, about every 10 ms.
class Polls {
public:
    // An object is held until it is removed. Adding it once more changes nothing.
    void add(Object* object);
    void remove(Object* object);
    void clear();

    // Asks those that are there now. One that is removed meanwhile isn't asked any more.
    void run();

private:
    struct Polled {
        Ref<Object> object;
        void (*poll)(Object*);  // nullptr without a method for it
    };

    std::vector<Polled>::iterator find(const Object* object);
    void arrange_next() const;

    std::vector<Polled> polled_;
    bool is_running_ = false;
};

Polls& polls();

}  // namespace tavrik::core
