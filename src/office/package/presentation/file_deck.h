#pragma once

#include <deque>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "office/model/powerpoint/deck.h"
#include "office/package/drawing/chart_parts.h"
#include "office/package/open_files.h"
#include "office/package/presentation/deck_file.h"
#include "office/package/presentation/deck_layouts.h"
#include "office/package/presentation/file_slide.h"
#include "office/package/xml.h"

namespace office::package {

/// A presentation in a package. Its window remembers what it shows.
class FileDeck : public OpenFile<powerpoint::Deck, FileDeck>, private powerpoint::DeckWindow {
public:
    /// `path` is empty for a deck that has no file yet. `PackageError` if the package is damaged or
    /// no presentation.
    FileDeck(Package package, std::string path, std::string name, FileRulesPtr rules);

    [[nodiscard]] const MeasureText& measure() const { return rules_->measure; }
    [[nodiscard]] DeckLayouts& layouts() { return layouts_; }
    [[nodiscard]] ChartParts& charts() { return charts_; }
    /// Where pictures go: their names without number and ending.
    [[nodiscard]] std::string mediaStem() const;
    /// Where workbooks go, in the same way.
    [[nodiscard]] std::string embeddingStem() const;
    [[nodiscard]] std::int32_t placeOf(const FileSlide& slide) const;
    void removeSlide(FileSlide& slide);
    void markGone();

    bool isReadOnly() override { return false; }
    Size slideSize() override;
    std::int32_t slideCount() override { return static_cast<std::int32_t>(slides_.size()); }
    powerpoint::DeckSlidePtr slideAt(std::int32_t place) override;
    powerpoint::DeckSlidePtr addSlide(std::int32_t place, std::int32_t layout) override;
    powerpoint::DeckWindow& window() override { return *this; }
    bool showsSlides() override { return false; }
    void endSlideShow() override {}
    /// Also with the ending .pptm. A deck with macros leaves them out of a .pptx.
    void saveCopy(const std::string& path) override;

private:
    std::int32_t viewType() override { return viewType_; }
    void setViewType(std::int32_t viewType) override;
    powerpoint::DeckSlidePtr slideInView() override;
    void show(const powerpoint::DeckSlidePtr& slide) override;
    void select(const powerpoint::DeckShapePtr& shape) override;
    void unselect() override {}

    void readSlides();
    /// Keeps the slides that were asked for last as they are, and lets the one before them rest.
    void noteUse(const FileSlidePtr& slide);
    void listSlide(std::int32_t place, const std::string& relationshipId, const std::string& id);
    [[nodiscard]] std::string freeSlideId();
    [[nodiscard]] std::string neighbourLayout();
    void writeCount();

    Xml presentation_;
    DeckLayouts layouts_;
    ChartParts charts_;
    std::vector<std::shared_ptr<FileSlide>> slides_;
    std::deque<std::weak_ptr<FileSlide>> inUse_;
    /// All numbers of slides that are taken or were; empty until one is asked for.
    std::set<unsigned> slideIds_;
    std::int32_t viewType_ = 9;
    std::weak_ptr<FileSlide> inView_;
};

using FileDeckPtr = std::shared_ptr<FileDeck>;

/// The part that a package is about. `PackageError` NotAPackage if that is no presentation.
[[nodiscard]] std::string presentationPartOf(Package& package);

}  // namespace office::package
