#pragma once

#include <QObject>
#include <QString>

namespace tavrik::bench {

class QtSpeaker : public QObject {
    Q_OBJECT
    Q_PROPERTY(int volume READ volume WRITE set_volume)

public:
    Q_INVOKABLE bool say(const QString& text, int times);
    int volume() const;
    void set_volume(int volume);

private:
    int volume_ = 0;
};

}  // namespace tavrik::bench
