#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "office/model/word/objects.h"

namespace office::model::word {

namespace {

/// How paragraphs look. What is set is not read back.
class ParagraphFormat : public DocumentObject<ParagraphFormat> {
public:
    /// None: a format of no paragraph, which only collects what is set.
    ParagraphFormat(const InDocument& home, std::optional<ChangeParagraph> change)
        : DocumentObject(home),
          change_(change) {}

    static const MemberTable<ParagraphFormat>& members();

    [[nodiscard]] const ParagraphChange& collected() const { return collected_; }

private:
    template <class Type>
    void set(std::optional<Type> ParagraphChange::*part, Type value) {
        collected_.*part = value;
        if (change_) (document().**change_)(std::exchange(collected_, {}));
    }

    std::optional<ChangeParagraph> change_;
    ParagraphChange collected_;
};

const MemberTable<ParagraphFormat>& ParagraphFormat::members() {
    using Self = ParagraphFormat;
    static const auto table = [] {
        MemberTable<Self> made("ParagraphFormat");
        made.property("Duplicate",
                      [](Self& self) { return makeObject<Self>(self.home(), std::nullopt); });
        made.property("Style", {}, unread<Self>,
                      [](Self& self, const CallArguments& arguments, const Value& number) {
                          self.set(&ParagraphChange::style, styleOf(number, arguments.source()));
                      });
        made.property("PageBreakBefore", {}, unread<Self>,
                      [](Self& self, const CallArguments&, const Value& on) {
                          self.set(&ParagraphChange::breaksPageBefore, on.toBool());
                      });
        // An unset value is 0, as everywhere in automation: to the left.
        made.property(
            "Alignment", {}, unread<Self>,
            [](Self& self, const CallArguments& arguments, const Value& number) {
                self.set(&ParagraphChange::alignment,
                         static_cast<Alignment>(static_cast<std::int32_t>(numberWithin(
                             0, 3, number.isEmpty() ? Value(0) : number, arguments.source()))));
            });
        const auto length = [&](const char* name, double least,
                                std::optional<double> ParagraphChange::*part) {
            made.property(name, {}, unread<Self>,
                          [=](Self& self, const CallArguments& arguments, const Value& points) {
                              self.set(part,
                                       numberWithin(least, furthestPt, points, arguments.source()));
                          });
        };
        length("SpaceBefore", 0, &ParagraphChange::spaceBefore);
        length("SpaceAfter", 0, &ParagraphChange::spaceAfter);
        length("LeftIndent", -furthestPt, &ParagraphChange::leftIndent);
        length("RightIndent", -furthestPt, &ParagraphChange::rightIndent);
        length("FirstLineIndent", 0, &ParagraphChange::firstLineIndent);
        return made;
    }();
    return table;
}

}  // namespace

std::int32_t styleOf(const Value& number, const std::string& source) {
    constexpr std::array known = {style::normal, style::heading1, style::caption, style::title};
    const std::int32_t wanted = number.toLong();
    if (std::find(known.begin(), known.end(), wanted) == known.end())
        refuseCall(source, fmt::format("There is no style {} here", wanted));
    return wanted;
}

Object paragraphFormatObject(const InDocument& home, ChangeParagraph change) {
    return makeObject<ParagraphFormat>(home, change);
}

ParagraphChange collectedIn(const Value& format, const std::string& source) {
    const auto object = objectOf<ParagraphFormat>(format);
    if (!object)
        throw Failure(FailureNumber::TypeMismatch, source,
                      source + " takes the format of a paragraph");
    return object->collected();
}

}  // namespace office::model::word
