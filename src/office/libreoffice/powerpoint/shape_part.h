#pragma once

#include <memory>
#include <utility>

#include "office/libreoffice/guard.h"
#include "office/libreoffice/powerpoint/impress_document.h"

namespace libreoffice::powerpoint {

/// A tri-state of the object models: -1 or 0.
[[nodiscard]] inline office::Value triState(bool on) {
    return on ? -1 : 0;
}

/// A shape as an automation object needs it: with its document and the desk.
struct ShapeOfDocument {
    DeskPtr desk;
    ImpressDocumentPtr document;
    HeldShapePtr shape;
};

/// Base of the objects that are a part of one shape: its shadow, its text, ...
template <class Self>
class ShapePart : public UnoObject<Self> {
public:
    explicit ShapePart(ShapeOfDocument whole)
        : UnoObject<Self>(whole.desk, whole.document),
          whole_(std::move(whole)) {}

protected:
    [[nodiscard]] const ShapeOfDocument& whole() const { return whole_; }
    [[nodiscard]] HeldShape& shape() const { return *whole_.shape; }

private:
    ShapeOfDocument whole_;
};

}  // namespace libreoffice::powerpoint
