#pragma once

#include <rttr/type>
#include <string>

namespace tavrik::bench {

class RttrSpeaker {
public:
    bool say(const std::string& text, int times);
    int volume() const;
    void set_volume(int volume);

private:
    int volume_ = 0;
};

}  // namespace tavrik::bench
