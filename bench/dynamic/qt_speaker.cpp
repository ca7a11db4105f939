#include "bench/dynamic/qt_speaker.h"

namespace tavrik::bench {

bool QtSpeaker::say(const QString& text, int times) { return text.size() * times > volume_; }
int QtSpeaker::volume() const { return volume_; }
void QtSpeaker::set_volume(int volume) { volume_ = volume; }

}  // namespace tavrik::bench
