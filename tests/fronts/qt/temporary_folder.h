#pragma once

#include <QTemporaryDir>

#include <filesystem>
#include <string>

namespace tavrik::front::qt {

// A folder for the length of a test. QTemporaryDir itself can't remove files whose names aren't UTF-8.
class TemporaryFolder {
public:
    TemporaryFolder() { folder_.setAutoRemove(false); }
    ~TemporaryFolder() {
        std::error_code error;
        std::filesystem::remove_all(path(), error);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string path() const { return folder_.path().toStdString(); }

private:
    QTemporaryDir folder_;
};

}  // namespace tavrik::front::qt
