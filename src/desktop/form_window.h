#pragma once

#include <QtWidgets/QWidget>

#include <map>
#include <vector>

#include "desktop/control_view.h"
#include "desktop/shadow.h"
#include "forms/desktop.h"
#include "forms/form.h"

namespace desktop {

class FormHost;

/// The window of one form: a plate in the form's colour with the views of its controls, and around
/// it the soft edge, or a hard one where the screen allows no other.
class FormWindow final : public QWidget {
public:
    FormWindow(forms::Form& form, FormHost& host);
    ~FormWindow() override;

    /// Shows the window in front of the others. One that is visible stays where it is.
    void open(forms::ShowMode mode, QWindow* parent);
    /// Draws what has changed in the form.
    void sync();
    /// Lets go of the form and its controls; the window is hidden and only waits for its end.
    void letGo();

    /// Destroys the views of controls that have gone. To be called when no event of the form is
    /// under way: the control may have gone in its own.
    void bury();

    /// Null for a control that has no view yet.
    [[nodiscard]] ControlView* viewOf(const forms::Control& control) const;
    [[nodiscard]] bool keyboardInUse() const { return keyboardInUse_; }
    /// The form alone, without the soft edge.
    [[nodiscard]] QWidget& plate() { return *plate_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    struct Drawn {
        forms::Place place;
        std::string caption;
        forms::Colour ground;
        forms::WindowState state = forms::WindowState::Normal;
        bool topmost = false;
        Shadow edge;
    };

    /// Whether an event is a click or a key for a widget of this window.
    [[nodiscard]] bool isInputOfMine(const QObject* receiver, const QEvent& event) const;
    void syncViews();
    void syncOrder();
    void syncTabOrder();
    void syncFocus();
    void syncPlace();
    void syncState();
    void raiseBelowModal();
    void centre();
    [[nodiscard]] QWidget& parentFor(const forms::Control& control);
    [[nodiscard]] std::vector<ControlView*> inTabOrder() const;
    void focusCame(const QWidget* now);
    void pressByKey(bool isDefault);
    [[nodiscard]] int margin() const;

    forms::Form* form_;
    FormHost& host_;
    QWidget* plate_;  ///< the toolkit's, as the views
    std::vector<ControlView*> views_;
    std::map<const forms::Control*, ControlView*> viewOf_;
    std::vector<ControlView*> gone_;
    std::vector<const forms::Control*> order_;
    std::vector<const forms::Control*> tabOrder_;
    Drawn drawn_;
    const forms::Control* focus_ = nullptr;
    bool opened_ = false;
    bool syncing_ = false;
    bool blends_ = false;
    bool keyboardInUse_ = false;
};

}  // namespace desktop
