#pragma once

#include <cstdint>
#include <string>

#include "office/suite.h"
#include "session/host.h"
#include "session/notices.h"
#include "session/progress_display.h"

namespace session {

/// The shared values of one process: the references to the running applications and the flags of
/// one run. There is one, made by the program and passed by reference; every part reads and writes
/// it freely.
struct OfficeSession {
    OfficeSession(office::Suite& theSuite, Host& theHost, NoticePresenter& theNotices,
                  ProgressDisplay& theProgress)
        : suite(theSuite),
          host(theHost),
          notices(theNotices),
          progress(theProgress) {}

    office::Suite& suite;
    Host& host;
    NoticePresenter& notices;
    ProgressDisplay& progress;

    office::Object ExcelApp;
    office::Object ActiveBook;
    office::Object PowerPointApp;
    office::Object SessionPresentation;
    office::Object WordApp;
    /// The part of `Version` ahead of its first "."; PowerPoint's once the window lock has run.
    std::string ExcelVersionTag;
    std::string ActiveSheetName;
    /// 1-based index of the slide being worked on.
    std::int16_t CurrentSlideIndex = 0;
    std::int16_t SavedViewType = 0;
    bool PowerPointFound = false;
    bool MainFormOpen = false;
    bool MainFormStarted = false;
    std::int16_t ItemCount = 0;
    office::WindowHandle PowerPointFrameHandle = 0;
    /// 1 once `/3122` has looked for charts under the selection.
    std::int16_t EmbeddedSelectionRun = 0;

    /// Values of one export run.
    std::int16_t CheckedCount = 0;
    std::int16_t ProgressCount = 0;
    std::int32_t SlideCountAtStart = 0;
    /// True: no placement by the user, the shape stays as inserted.
    bool DefaultPlacement = true;
    std::int16_t PictureStyle = 0;
    bool slideTitle = false;
    bool sourceInc = false;
    bool checkShadow = false;

    /// Points; those of the slide last looked at that had a title.
    double TitleTop = 0;
    double TitleHeight = 0;
};

}  // namespace session
