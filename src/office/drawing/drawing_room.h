#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <future>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "office/drawing/vector_picture.h"
#include "office/picture.h"

namespace office::drawing {

/// Draws pictures on threads of its own while the application goes on with its next item.
///
/// Only few wait at a time: who brings one more waits too. What was begun is finished before the
/// room goes.
class DrawingRoom : public PictureFiles {
public:
    /// With a thread for each processor, up to four.
    DrawingRoom();
    explicit DrawingRoom(unsigned threads);
    ~DrawingRoom() override;

    [[nodiscard]] Picture draw(VectorPicture picture);
    /// Draws a file, in a folder that is there, in the place of an earlier one.
    void drawFile(VectorPicture picture, const std::string& path);

    /// Does something with a picture once it is drawn, on a thread of the room.
    std::shared_future<void> afterwards(std::shared_future<std::string> png,
                                        std::function<void(const std::string& png)> use);

    void complete(const std::string& path) override;
    std::optional<Picture> take(const std::string& path) override;
    Picture draw(const VectorFile& svg) override;

private:
    struct File {
        Picture picture;
        /// Guarded by the mutex, and shared with the thread that writes the file.
        std::shared_ptr<bool> isWanted;
    };

    Picture drawAnd(VectorPicture picture, std::function<void(const std::string& png)> whenDrawn);
    void enqueue(std::function<void()> task);
    void write(const std::string& path, const std::string& png, const bool& isWanted);
    void work();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> waiting_;
    bool isClosing_ = false;
    /// Those that nobody has taken or completed.
    std::map<std::string, File> files_;
    std::vector<std::thread> threads_;
};

}  // namespace office::drawing
