#include "office/drawing/drawing_room.h"

#include <fmt/format.h>
#include <glib.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <utility>

#include "office/drawing/painting.h"
#include "office/failure.h"
#include "office/units.h"

namespace office::drawing {

namespace {

/// For each thread. More would only take memory.
constexpr std::size_t mostWaiting = 2;

/// Also the processor that the application runs on: drawing takes longer than what it has to do for
/// an item, so that it would wait for the others.
unsigned threadsOfThisMachine() {
    constexpr unsigned most = 4;
    return std::clamp(std::thread::hardware_concurrency(), 1U, most);
}

std::string lookOf(const VectorPicture& picture) {
    const std::unique_ptr<gchar, decltype(&g_free)> sum(
        g_compute_checksum_for_data(G_CHECKSUM_SHA256,
                                    reinterpret_cast<const guchar*>(picture.vectors.data()),
                                    picture.vectors.size()),
        &g_free);
    return fmt::format("{} {}x{} {}", sum.get(), picture.width, picture.height,
                       picture.isTranslucent);
}

std::string drawn(const VectorPicture& picture) {
    try {
        return pngOf(picture);
    } catch (const Failure&) {
        throw;
    } catch (const std::exception& error) {
        failToDraw(error.what());
    }
}

}  // namespace

DrawingRoom::DrawingRoom() : DrawingRoom(threadsOfThisMachine()) {}

DrawingRoom::DrawingRoom(unsigned threads) {
    for (unsigned i = 0; i < threads; ++i) threads_.emplace_back([this] { work(); });
}

DrawingRoom::~DrawingRoom() {
    {
        const std::lock_guard lock(mutex_);
        isClosing_ = true;
    }
    changed_.notify_all();
    for (std::thread& thread : threads_) thread.join();
}

Picture DrawingRoom::draw(VectorPicture picture) {
    return drawAnd(std::move(picture), [](const std::string&) {});
}

Picture DrawingRoom::draw(const VectorFile& svg) {
    constexpr double mostPixels = 20e6;
    // What the surface that it is painted on takes.
    constexpr double longestSide = 32700;
    const double tooMany =
        svg.widthPt * pixelsPerPoint * svg.heightPt * pixelsPerPoint / mostPixels;
    const double perPoint =
        std::min(tooMany > 1 ? pixelsPerPoint / std::sqrt(tooMany) : pixelsPerPoint,
                 longestSide / std::max(svg.widthPt, svg.heightPt));
    const auto pixels = [&](double points) {
        return std::max(1, static_cast<std::int32_t>(std::lround(points * perPoint)));
    };
    return draw({.vectors = svg.bytes,
                 .width = pixels(svg.widthPt),
                 .height = pixels(svg.heightPt),
                 .widthPt = svg.widthPt,
                 .heightPt = svg.heightPt,
                 .isTranslucent = true});
}

void DrawingRoom::drawFile(VectorPicture picture, const std::string& path) {
    const auto isWanted = std::make_shared<bool>(true);
    {
        const std::lock_guard lock(mutex_);
        if (const auto earlier = files_.find(path); earlier != files_.end())
            *earlier->second.isWanted = false;
    }
    Picture made = drawAnd(std::move(picture), [this, path, isWanted](const std::string& png) {
        write(path, png, *isWanted);
    });
    const std::lock_guard lock(mutex_);
    files_.insert_or_assign(path, File{std::move(made), isWanted});
}

void DrawingRoom::complete(const std::string& path) {
    std::optional<Picture> picture;
    {
        const std::lock_guard lock(mutex_);
        const auto found = files_.find(path);
        if (found == files_.end()) return;
        picture = std::move(found->second.picture);
        files_.erase(found);
    }
    static_cast<void>(picture->png.get());
}

std::optional<Picture> DrawingRoom::take(const std::string& path) {
    const std::lock_guard lock(mutex_);
    const auto found = files_.find(path);
    if (found == files_.end()) return std::nullopt;
    Picture picture = std::move(found->second.picture);
    *found->second.isWanted = false;
    files_.erase(found);
    std::error_code isNotThereYet;
    std::filesystem::remove(path, isNotThereYet);
    return picture;
}

Picture DrawingRoom::drawAnd(VectorPicture picture,
                             std::function<void(const std::string& png)> whenDrawn) {
    Picture made{picture.widthPt, picture.heightPt, lookOf(picture), {}};
    const auto task = std::make_shared<std::packaged_task<std::string()>>(
        [vectors = std::move(picture), done = std::move(whenDrawn)] {
            std::string png = drawn(vectors);
            done(png);
            return png;
        });
    made.png = task->get_future().share();
    enqueue([task] { (*task)(); });
    return made;
}

std::shared_future<void> DrawingRoom::afterwards(std::shared_future<std::string> png,
                                                 std::function<void(const std::string& png)> use) {
    const auto task = std::make_shared<std::packaged_task<void()>>(
        [png = std::move(png), use = std::move(use)] { use(png.get()); });
    enqueue([task] { (*task)(); });
    return task->get_future().share();
}

void DrawingRoom::enqueue(std::function<void()> task) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return waiting_.size() < mostWaiting * threads_.size(); });
    waiting_.push_back(std::move(task));
    lock.unlock();
    changed_.notify_all();
}

void DrawingRoom::write(const std::string& path, const std::string& png, const bool& isWanted) {
    // Under the lock, so that nobody takes the picture while its file comes to be.
    const std::lock_guard lock(mutex_);
    if (!isWanted) return;
    std::ofstream file(path, std::ios::binary);
    file.write(png.data(), static_cast<std::streamsize>(png.size()));
    file.close();
    if (file) return;
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
    refuse("Chart.Export", fmt::format("The picture could not be written to \"{}\"", path));
}

void DrawingRoom::work() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return isClosing_ || !waiting_.empty(); });
        if (waiting_.empty()) return;
        std::function<void()> task = std::move(waiting_.front());
        waiting_.pop_front();
        lock.unlock();
        changed_.notify_all();
        task();
        // What it held may take a while to go, such as a shape of the suite's.
        task = nullptr;
        lock.lock();
    }
}

}  // namespace office::drawing
