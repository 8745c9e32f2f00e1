#pragma once

#include <string>

#include "office_double/loose_object.h"

namespace office_double {

/// The selected slides or shapes: `Count`, `Item`, and else the members of what is selected.
/// Reading reads the first one, writing writes all.
class SelectedRange : public DoubleObject {
public:
    /// `items` isn't empty.
    SelectedRange(Owner parent, std::string className, Items items)
        : DoubleObject(parent),
          className_(std::move(className)),
          items_(std::move(items)) {}

    [[nodiscard]] std::string typeName() const override { return className_; }

    Value read(std::string_view member, const Arguments& arguments) override {
        if (office::sameIgnoringCase(member, "Count")) return count(items_.size());
        if (office::sameIgnoringCase(member, "Item")) {
            const CallArguments index(className_ + ".Item", {"Index"}, arguments);
            return valueOf(lookUp(items_, index.at(0), index.source()));
        }
        return present(items_.front()).read(member, arguments);
    }

    void write(std::string_view member, const Arguments& arguments, const Value& value) override {
        for (const auto& item : items_) present(item).write(member, arguments, value);
    }

private:
    [[nodiscard]] DoubleObject& present(const std::shared_ptr<DoubleObject>& item) const {
        if (!item->isGone()) return *item;
        throw Failure(FailureNumber::Disconnected, className_, "What was selected has gone");
    }

    std::string className_;
    Items items_;
};

}  // namespace office_double
