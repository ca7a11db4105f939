#include "bench/dynamic/rttr_speaker.h"

#include <rttr/registration>

namespace tavrik::bench {

bool RttrSpeaker::say(const std::string& text, int times) { return static_cast<int>(text.size()) * times > volume_; }
int RttrSpeaker::volume() const { return volume_; }
void RttrSpeaker::set_volume(int volume) { volume_ = volume; }

}  // namespace tavrik::bench

RTTR_REGISTRATION {
    using tavrik::bench::RttrSpeaker;
    rttr::registration::class_<RttrSpeaker>("Speaker")
        .method("say", &RttrSpeaker::say)
        .property("volume", &RttrSpeaker::volume, &RttrSpeaker::set_volume);
}
