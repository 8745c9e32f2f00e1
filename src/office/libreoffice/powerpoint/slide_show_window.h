#pragma once

#include "office/libreoffice/guard.h"
#include "office/libreoffice/powerpoint/impress_document.h"

namespace libreoffice::powerpoint {

/// The window of a running slide show.
class SlideShowWindow : public UnoObject<SlideShowWindow> {
public:
    SlideShowWindow(DeskPtr desk, ImpressDocumentPtr document);
    static const office::MemberTable<SlideShowWindow>& members();

private:
    ImpressDocumentPtr document_;
};

/// What is seen of a running slide show.
class SlideShowView : public UnoObject<SlideShowView> {
public:
    SlideShowView(DeskPtr desk, ImpressDocumentPtr document);
    static const office::MemberTable<SlideShowView>& members();

private:
    office::Value exit(const office::CallArguments& arguments);

    ImpressDocumentPtr document_;
};

/// The running slide shows of all presentations.
class SlideShowWindows : public UnoObject<SlideShowWindows> {
public:
    explicit SlideShowWindows(DeskPtr desk);
    static const office::MemberTable<SlideShowWindows>& members();

private:
    office::Value count();
    office::Value item(const office::CallArguments& arguments);

    [[nodiscard]] std::vector<ImpressDocumentPtr> running() const;
};

}  // namespace libreoffice::powerpoint
