#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSlider>

#include <utility>

#include "desktop/fixture.h"

namespace {

using Controls = OnTheDesktop;

TEST_F(Controls, AClickOnEachReachesItsFormOnce) {
    const std::pair<const forms::Control&, const char*> cases[] = {
        {form.Check1, "Check1"},         {form.Up, "Up"},
        {form.OptionWord, "OptionWord"}, {form.Image2, "Image2"},
        {form.ContinueOk, "Continue"},   {form.btnCancel, "Cancel"}};
    for (const auto& [clicked, event] : cases) {
        click(clicked);
        EXPECT_EQ(times(event), 1) << event;
    }
    form.OptionWord.visible = false;
    EXPECT_FALSE(widgetOf<QWidget>(form.OptionWord).isVisible());
    for (bool* enabled : {&form.Up.enabled, &form.Frame4.enabled}) {
        *enabled = false;
        click(form.Up);
        EXPECT_EQ(times("Up"), 1);
        *enabled = true;
    }
}

TEST_F(Controls, AValueThatTheFormSetsIsShownAndRaisesItsEventOnlyOnce) {
    form.Check1.setValue(forms::CheckBox::State::Checked);
    form.OptionHtml.setValue(true);
    form.SlideTitle.setText("Costs");
    form.WidthSlider.setValue(20);
    form.Up.accessibleDescription = "Moves the row";

    EXPECT_EQ(widgetOf<QCheckBox>(form.Check1).checkState(), Qt::Checked);
    EXPECT_FALSE(widgetOf<QAbstractButton>(form.OptionPpt).isChecked());
    EXPECT_TRUE(widgetOf<QAbstractButton>(form.OptionHtml).isChecked());
    EXPECT_EQ(widgetOf<QLineEdit>(form.SlideTitle).text(), QStringLiteral("Costs"));
    EXPECT_EQ(widgetOf<QSlider>(form.WidthSlider).value(), 20);
    EXPECT_EQ(widgetOf<QWidget>(form.Up).accessibleDescription(), QStringLiteral("Moves the row"));
    for (const char* event : {"Check1", "OptionHtml", "SlideTitle=Costs", "WidthSlider=20"}) {
        EXPECT_EQ(times(event), 1) << event;
    }
}

TEST_F(Controls, AGreyCheckBoxIsClearedAndADoubleClickIsOneOfEach) {
    EXPECT_EQ(widgetOf<QCheckBox>(form.Check1).checkState(), Qt::PartiallyChecked);
    click(form.Check1);
    EXPECT_EQ(form.Check1.value(), forms::CheckBox::State::Unchecked);
    click(form.imgChart);
    QTest::mouseDClick(&widgetOf<QWidget>(form.imgChart), Qt::LeftButton);
    QTest::mouseRelease(&widgetOf<QWidget>(form.imgChart), Qt::LeftButton);
    EXPECT_EQ(times("imgChart double"), 1);
    EXPECT_EQ(times("imgChart"), 1);
}

TEST_F(Controls, TypedTextReachesTheFormLetterByLetterAndIsShownAsTheFormMendsIt) {
    form.focus = &form.SlideTitle;
    form.SlideTitle.startWith("");
    type("ab");
    EXPECT_EQ(times("SlideTitle=a"), 1);
    EXPECT_EQ(times("SlideTitle=ab"), 1);
    form.SlideTitle.onChange = [this] {
        std::string digits = form.SlideTitle.text();
        std::erase_if(digits, [](char letter) { return letter < '0' || letter > '9'; });
        form.SlideTitle.setText(digits);
    };
    type("1x2");
    EXPECT_EQ(form.SlideTitle.text(), "12");
    EXPECT_EQ(widgetOf<QLineEdit>(form.SlideTitle).text(), QStringLiteral("12"));
}

TEST_F(Controls, EnterPressesTheButtonThatHasTheFocusElseTheDefault) {
    form.focus = &form.SlideTitle;
    key(Qt::Key_Return);
    EXPECT_EQ(times("Continue"), 1);
    form.focus = &form.Up;
    key(Qt::Key_Enter);
    EXPECT_EQ(times("Up"), 1);
    QWidget& bar = widgetOf<QWidget>(form.TitelBar1);
    QTest::keyClick(bar.childAt(bar.width() - 10, 10), Qt::Key_Return);
    EXPECT_FALSE(desk.isLoaded(form)) << "the cross of the title bar";
    EXPECT_EQ(times("Continue"), 1);
}

TEST_F(Controls, ABoxOfAColumnOfBoxesTakesEnterAndTheArrowsForItself) {
    std::string steps;
    form.SlideTitle.onStep = [&](int step) {
        steps += step > 0 ? '+' : '-';
        form.SlideTitle.setText("next");
        form.SlideTitle.selectAll();
    };
    form.focus = &form.SlideTitle;
    for (const Qt::Key pressed : {Qt::Key_Return, Qt::Key_Down, Qt::Key_Up}) key(pressed);
    EXPECT_EQ(steps, "++-");
    EXPECT_EQ(times("Continue"), 0);
    EXPECT_EQ(widgetOf<QLineEdit>(form.SlideTitle).selectedText(), QStringLiteral("next"));
}

TEST_F(Controls, AKeyThatIsHeldDownPressesNothing) {
    form.escapeCloses = true;
    form.focus = &form.SlideTitle;
    QWidget& focused = widgetOf<QWidget>(form.SlideTitle);
    QWidget& cross = *widgetOf<QWidget>(form.TitelBar1).findChild<QAbstractButton*>();
    for (const Qt::Key held : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        for (QWidget* owner : {&focused, &cross}) {
            QKeyEvent repeated(QEvent::KeyPress, held, Qt::NoModifier, {}, true);
            QCoreApplication::sendEvent(owner, &repeated);
        }
    }
    EXPECT_EQ(times("Continue") + times("Cancel"), 0);
    EXPECT_TRUE(desk.isLoaded(form));
}

TEST_F(Controls, EscapePressesTheCancelButtonAndClosesOnlyAFormThatSaysSo) {
    form.focus = &form.SlideTitle;
    key(Qt::Key_Escape);
    EXPECT_EQ(times("Cancel"), 1);
    form.btnCancel.isCancel = false;
    key(Qt::Key_Escape);
    EXPECT_TRUE(desk.isLoaded(form));
    form.escapeCloses = true;
    key(Qt::Key_Escape);
    EXPECT_FALSE(desk.isLoaded(form));
}

TEST_F(Controls, ArrowKeysChooseTheNextUsableOptionOfTheFrameAndMoveTheSlider) {
    form.OptionWord.enabled = false;
    form.focus = &form.OptionPpt;
    key(Qt::Key_Right);
    EXPECT_TRUE(form.OptionHtml.value());
    EXPECT_EQ(form.focus, &form.OptionHtml);
    key(Qt::Key_Down);
    EXPECT_TRUE(form.OptionPpt.value()) << "the last is followed by the first";
    EXPECT_TRUE(form.Picture.value()) << "another frame's choice is another";
    std::swap(form.OptionPpt.place, form.OptionHtml.place);
    key(Qt::Key_Left);
    EXPECT_TRUE(form.OptionHtml.value()) << "as the eye follows them";
    form.focus = &form.WidthSlider;
    key(Qt::Key_Right);
    key(Qt::Key_PageDown);
    EXPECT_EQ(times("WidthSlider=66") + times("WidthSlider=56"), 2);
}

TEST_F(Controls, TabGoesFrameByFrameAndComesToTheTitleBarLast) {
    form.focus = &form.SlideTitle;
    // Of the options of a frame only the chosen one is a stop.
    const forms::Control* expected[] = {&form.OptionPpt, &form.Picture,   &form.WidthSlider,
                                        &form.wbStatus,  &form.btnCancel, &form.ContinueOk,
                                        &form.TitelBar1};
    for (const forms::Control* control : expected) {
        key(Qt::Key_Tab);
        EXPECT_EQ(form.focus, control)
            << control->name() << ", not " << (form.focus ? form.focus->name() : "none");
    }
}

TEST_F(Controls, TheLayerDecidesBetweenControlsOfAKind) {
    forms::CommandButton over(form, "over", form.ContinueOk.place);
    const auto shown = [&] {
        const QWidget& button = widgetOf<QWidget>(form.ContinueOk);
        return button.parentWidget()->childAt(button.geometry().center())->objectName();
    };
    EXPECT_EQ(shown(), QStringLiteral("over"));
    form.ContinueOk.setZOrder(forms::ZOrder::Front);
    EXPECT_EQ(shown(), QStringLiteral("ContinueOk"));
    form.lblActionBar.setZOrder(forms::ZOrder::Front);
    form.ContinueOk.setZOrder(forms::ZOrder::Back);
    EXPECT_NE(shown(), QStringLiteral("lblActionBar")) << "a text stays behind all buttons";
}

}  // namespace
