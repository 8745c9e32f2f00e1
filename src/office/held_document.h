#pragma once

namespace office {

/// An open document that stays open: somebody who closes it meanwhile waits until this goes. Then
/// it is closed as it would have been.
class HeldDocument {
public:
    HeldDocument() = default;
    HeldDocument(const HeldDocument&) = delete;
    HeldDocument& operator=(const HeldDocument&) = delete;
    virtual ~HeldDocument() = default;

    /// Whether somebody waits.
    [[nodiscard]] virtual bool isToBeClosed() const = 0;
};

}  // namespace office
