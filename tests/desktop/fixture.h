#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "desktop/input.h"
#include "desktop/qt_desktop.h"
#include "desktop/sample_form.h"

/// A desktop with the sample form on it.
class OnTheDesktop : public testing::Test {
protected:
    void SetUp() override { desk.show(form, forms::ShowMode::Modeless); }

    [[nodiscard]] long times(const std::string& event) const {
        return std::count(form.happened.begin(), form.happened.end(), event);
    }
    template <class Widget>
    [[nodiscard]] Widget& widgetOf(const forms::Control& control) {
        desk.letEventsRun();
        return dynamic_cast<Widget&>(*desk.widgetOf(control));
    }

    desktop::QtDesktop desk;
    sample::SampleForm form{desk};
};
