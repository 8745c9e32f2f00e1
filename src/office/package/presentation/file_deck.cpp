#include "office/package/presentation/file_deck.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

#include "office/model/powerpoint/objects.h"
#include "office/package/office_file.h"
#include "office/package/part_name.h"
#include "office/text.h"

namespace office::package {

namespace {

constexpr std::string_view slideType =
    "application/vnd.openxmlformats-officedocument.presentationml.slide+xml";

/// What a package about a presentation says that it is, by the kinds of file.
constexpr const char* plainPresentation =
    "application/vnd.openxmlformats-officedocument.presentationml.presentation.main+xml";
constexpr const char* macroPresentation =
    "application/vnd.ms-powerpoint.presentation.macroEnabled.main+xml";
constexpr std::array<std::string_view, 6> mainTypes = {
    plainPresentation,
    macroPresentation,
    "application/vnd.openxmlformats-officedocument.presentationml.template.main+xml",
    "application/vnd.ms-powerpoint.template.macroEnabled.main+xml",
    "application/vnd.openxmlformats-officedocument.presentationml.slideshow.main+xml",
    "application/vnd.ms-powerpoint.slideshow.macroEnabled.main+xml"};

constexpr std::string_view presentationOrder =
    "sldMasterIdLst notesMasterIdLst handoutMasterIdLst sldIdLst sldSz notesSz smartTags "
    "embeddedFontLst custShowLst photoAlbum custDataLst kinsoku defaultTextStyle modifyVerifier "
    "extLst";

constexpr const char* emptySlide =
    R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)"
    "\n"
    R"(<p:sld xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main")"
    R"( xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships")"
    R"( xmlns:p="http://schemas.openxmlformats.org/presentationml/2006/main"><p:cSld><p:spTree>)"
    R"(<p:nvGrpSpPr><p:cNvPr id="1" name=""/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr><p:grpSpPr/>)"
    R"(</p:spTree></p:cSld><p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr></p:sld>)";

/// The sections of a presentation, each a list of slides by their numbers.
std::vector<pugi::xml_node> sectionsIn(pugi::xml_node presentation) {
    std::vector<pugi::xml_node> lists;
    const auto extensions = childNamed(presentation, ns::presentation, "extLst");
    for (const pugi::xml_node extension : extensions.children()) {
        const auto all = childNamed(extension, ns::presentation2010, "sectionLst");
        for (const auto& section : childrenNamed(all, ns::presentation2010, "section")) {
            if (const auto list = childNamed(section, ns::presentation2010, "sldIdLst"))
                lists.push_back(list);
        }
    }
    return lists;
}

pugi::xml_node entryOf(pugi::xml_node list, const std::string& id) {
    return list.find_child_by_attribute("id", id.c_str());
}

/// A slide joins the section of the one that it stands before; at the end it joins the last one.
void joinSection(const std::vector<pugi::xml_node>& sections, const std::string& id,
                 const std::string& before) {
    if (sections.empty()) return;
    auto list = sections.back();
    pugi::xml_node next;
    for (const auto& section : sections) {
        if (before.empty()) break;
        if (const auto found = entryOf(section, before)) {
            list = section;
            next = found;
        }
    }
    std::string name = list.name();
    name.replace(name.find("sldIdLst"), std::string::npos, "sldId");
    auto entry =
        next ? list.insert_child_before(name.c_str(), next) : list.append_child(name.c_str());
    entry.append_attribute("id").set_value(id.c_str());
}

}  // namespace

std::string presentationPartOf(Package& package) {
    return mainPartOf(package, mainTypes, "presentation");
}

FileDeck::FileDeck(Package package, std::string path, std::string name, FileRulesPtr rules)
    : OpenFile(std::move(package), std::move(path), std::move(name), std::move(rules),
               presentationPartOf),
      presentation_(package_.read(main_), main_),
      layouts_(package_),
      charts_(package_, folderOf(main_)) {
    if (!isNamed(presentation_.root(), ns::presentation, "presentation"))
        throw PackageError(Fault::NotAPackage, "it is no presentation of the usual kind");
    readSlides();
}

void FileDeck::readSlides() {
    const Relationships& relationships = package_.relationshipsOf(main_);
    std::set<std::string> seen;
    const auto list = childNamed(presentation_.root(), ns::presentation, "sldIdLst");
    for (const auto& entry : childrenNamed(list, ns::presentation, "sldId")) {
        const std::string id = attributeNamed(entry, ns::relationships, "id").value();
        const Relationship* const found = relationships.withId(id);
        if (found == nullptr || found->isExternal)
            throw PackageError(
                Fault::Damaged,
                fmt::format("its list of slides names {}, which isn't there", shown(id)));
        std::string part = relationships.partOf(*found);
        if (!package_.has(part))
            throw PackageError(Fault::Damaged, "its slide " + shown(part) + " is missing");
        if (!seen.insert(partKey(part)).second)
            throw PackageError(Fault::Damaged,
                               "its list of slides names " + shown(part) + " twice");
        slides_.push_back(
            std::make_shared<FileSlide>(*this, std::move(part), id, entry.attribute("id").value()));
    }
}

std::int32_t FileDeck::placeOf(const FileSlide& slide) const {
    const auto self = std::find_if(slides_.begin(), slides_.end(),
                                   [&](const auto& held) { return held.get() == &slide; });
    return static_cast<std::int32_t>(self - slides_.begin()) + 1;
}

std::string FileDeck::mediaStem() const {
    return folderOf(main_) + "/media/image";
}

std::string FileDeck::embeddingStem() const {
    return folderOf(main_) + "/embeddings/Microsoft_Excel_Worksheet";
}

Size FileDeck::slideSize() {
    constexpr double plainWidth = 9144000;
    constexpr double plainHeight = 6858000;
    const auto size = childNamed(presentation_.root(), ns::presentation, "sldSz");
    const auto side = [&](const char* name, double plain) {
        const double emu = size.attribute(name).as_double();
        return (emu > 0 ? emu : plain) / emuPerPoint;
    };
    return {side("cx", plainWidth), side("cy", plainHeight)};
}

powerpoint::DeckSlidePtr FileDeck::slideAt(std::int32_t place) {
    const auto index = static_cast<std::size_t>(place) - 1;
    if (index >= slides_.size()) return nullptr;
    noteUse(slides_[index]);
    return slides_[index];
}

void FileDeck::noteUse(const FileSlidePtr& slide) {
    constexpr std::size_t most = 8;
    std::erase_if(inUse_, [&](const auto& one) { return one.lock() == slide; });
    inUse_.push_back(slide);
    if (inUse_.size() <= most) return;
    const FileSlidePtr longest = inUse_.front().lock();
    inUse_.pop_front();
    if (longest) longest->rest();
}

/// The layout whose master's layouts new slides get: that of the last slide which has one.
std::string FileDeck::neighbourLayout() {
    const auto last = std::find_if(slides_.rbegin(), slides_.rend(), [&](const auto& slide) {
        return !package_.partOfType(slide->part(), "slideLayout").empty();
    });
    if (last != slides_.rend()) return (*last)->layoutPart();
    const auto masters = childNamed(presentation_.root(), ns::presentation, "sldMasterIdLst");
    const auto first = childNamed(masters, ns::presentation, "sldMasterId");
    const std::string master =
        package_.partOfId(main_, attributeNamed(first, ns::relationships, "id").value());
    if (master.empty()) throw PackageError(Fault::Damaged, "it has no slide master");
    return layouts_.firstOf(master);
}

powerpoint::DeckSlidePtr FileDeck::addSlide(std::int32_t place, std::int32_t layout) {
    if (place < 1 || place > slideCount() + 1) return nullptr;
    const FileSlidePtr neighbour = slides_.empty() ? nullptr : slides_.back();
    const std::string layoutPart = layouts_.find(layout, neighbourLayout());
    const std::string part = package_.freeName(folderOf(main_) + "/slides/slide", ".xml");
    package_.add(part, slideType, emptySlide);
    package_.relationshipsOf(part).add("slideLayout", layoutPart);
    const std::string relationship = package_.relationshipsOf(main_).add("slide", part);
    const std::string id = freeSlideId();
    listSlide(place, relationship, id);
    auto slide = std::make_shared<FileSlide>(*this, part, relationship, id);
    slides_.insert(slides_.begin() + (place - 1), slide);
    slide->makePlaceholders(layout);
    if (neighbour) slide->takeFootOf(*neighbour);
    noteUse(slide);
    return slide;
}

/// Above all that are taken, as long as there are numbers; those of masters lie higher.
std::string FileDeck::freeSlideId() {
    constexpr unsigned lowest = 256;
    constexpr unsigned end = 2147483648U;
    std::set<unsigned>& taken = slideIds_;
    const auto add = [&](pugi::xml_node list) {
        for (const pugi::xml_node entry : list.children()) {
            const unsigned id = entry.attribute("id").as_uint();
            if (id < end) taken.insert(id);
        }
    };
    if (taken.empty()) {
        taken.insert(lowest - 1);
        add(childNamed(presentation_.root(), ns::presentation, "sldIdLst"));
        // A section may still name slides that have gone.
        for (const auto& section : sectionsIn(presentation_.root())) add(section);
    }
    unsigned id = std::max(lowest, *taken.rbegin() + 1);
    if (id >= end) {
        for (id = lowest; taken.contains(id);) ++id;
    }
    taken.insert(id);
    return std::to_string(id);
}

void FileDeck::listSlide(std::int32_t place, const std::string& relationshipId,
                         const std::string& id) {
    isChanged_ = true;
    auto root = presentation_.root();
    const auto list = childInOrder(root, ns::presentation, "sldIdLst", presentationOrder);
    const bool isLast = place > slideCount();
    const std::string before = isLast ? "" : slides_[static_cast<std::size_t>(place) - 1]->id();
    insertMarkup(list, fmt::format(R"(<p:sldId id="{}" r:id="{}"/>)", id, relationshipId),
                 isLast ? pugi::xml_node() : entryOf(list, before));
    joinSection(sectionsIn(root), id, before);
}

void FileDeck::removeSlide(FileSlide& slide) {
    isChanged_ = true;
    auto root = presentation_.root();
    auto list = childNamed(root, ns::presentation, "sldIdLst");
    list.remove_child(entryOf(list, slide.id()));
    for (auto& section : sectionsIn(root)) section.remove_child(entryOf(section, slide.id()));
    const auto shows = childNamed(root, ns::presentation, "custShowLst");
    for (const auto& show : shows.children()) {
        auto slides = childNamed(show, ns::presentation, "sldLst");
        for (const auto& entry : childrenNamed(slides, ns::presentation, "sld")) {
            if (attributeNamed(entry, ns::relationships, "id").value() == slide.relationshipId())
                slides.remove_child(entry);
        }
    }
    package_.relationshipsOf(main_).remove(slide.relationshipId());
    package_.remove(slide.part());
    slide.markGone();
    std::erase_if(slides_, [&](const auto& held) { return held.get() == &slide; });
}

void FileDeck::markGone() {
    isGone_ = true;
    for (const auto& slide : slides_) slide->markGone();
}

void FileDeck::saveCopy(const std::string& path) {
    becomeFileOf(path, {{".pptx", plainPresentation, false}, {".pptm", macroPresentation, true}},
                 package_, main_, "Presentation");
    for (const auto& slide : slides_) slide->write();
    try {
        writeCount();
    } catch (const PackageError&) {
        // What only tells about the deck may be wrong with it.
    }
    if (isChanged_) package_.replace(main_, presentation_.bytes());
    saveOver(package_, path);
}

/// The number that file managers show.
void FileDeck::writeCount() {
    const std::string part = package_.partOfType("/", "extended-properties");
    if (part.empty()) return;
    Xml properties(package_.read(part), part);
    auto count = childCalled(properties.root(), "Slides");
    if (!count || count.text().as_int() == slideCount()) return;
    count.text().set(slideCount());
    package_.replace(part, properties.bytes());
}

void FileDeck::setViewType(std::int32_t viewType) {
    constexpr std::int32_t lastView = 12;
    if (viewType < 1 || viewType > lastView)
        refuseCall("DocumentWindow.ViewType", fmt::format("There is no view {}", viewType));
    viewType_ = viewType;
}

powerpoint::DeckSlidePtr FileDeck::slideInView() {
    if (const auto shown = inView_.lock(); shown && !shown->isGone()) return shown;
    return slideAt(1);
}

void FileDeck::show(const powerpoint::DeckSlidePtr& slide) {
    inView_ = std::dynamic_pointer_cast<FileSlide>(slide);
}

void FileDeck::select(const powerpoint::DeckShapePtr& shape) {
    show(std::dynamic_pointer_cast<FileShape>(shape)->slide().shared_from_this());
}

}  // namespace office::package
