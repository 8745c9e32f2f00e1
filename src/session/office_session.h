#pragma once

#include <cstdint>
#include <string>

#include "office/picture_kind.h"
#include "office/suite.h"
#include "session/host.h"
#include "session/notices.h"
#include "session/picture_look.h"
#include "session/progress_display.h"

namespace session {

/// The shared values of one process: the references to the running applications and what the
/// commands share. There is one, made by the program and passed by reference; every part reads and
/// writes it freely.
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
    office::Object SessionDocument;
    std::string ActiveSheetName;
    /// What items that go as pictures become on slides and in documents.
    office::PictureKind Pictures = office::PictureKind::Png;
    /// The look that the user has chosen for what comes to slides; none at the start.
    PictureLook PictureStyle = PictureLook::None;
    bool PowerPointFound = false;
    std::int16_t ItemCount = 0;
    office::WindowHandle PowerPointFrameHandle = 0;
};

}  // namespace session
