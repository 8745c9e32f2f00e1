#pragma once

#include <QtWidgets/QWidget>

#include "desktop/form_views.h"
#include "desktop/shadow.h"
#include "forms/desktop.h"
#include "forms/form.h"

namespace desktop {

class LoadedForm;

/// The window of one form: a plate in the form's colour with the views of its controls, and around
/// it the soft edge, or a hard one where the screen allows no other.
class FormWindow final : public QWidget {
public:
    FormWindow(forms::Form& form, LoadedForm& host);
    ~FormWindow() override;

    /// Shows the window in front of the others. One that is visible stays where it is.
    void open(forms::ShowMode mode, QWindow* parent);
    /// Draws what has changed in the form.
    void sync();
    /// Forgets the form and its controls and hides the window.
    void detach();

    [[nodiscard]] FormViews& views() { return views_; }
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
    void syncFocus();
    void syncLooks();
    void syncPlace();
    void syncState();
    /// Makes a form as large as the screen has room for, or as large again as it was.
    void switchSize();
    void raiseBelowModal();
    void centre();
    void focusCame(const QWidget* now);
    void pressByKey(bool isDefault);
    void askForHelp();
    [[nodiscard]] int margin() const;

    forms::Form* form_;
    LoadedForm& host_;
    QWidget* plate_;             ///< the toolkit's, as the corner
    QWidget* corner_ = nullptr;  ///< by which the form is enlarged; null where it is not
    FormViews views_;
    Drawn drawn_;
    /// The form's place before it was maximised.
    forms::Place normalPlace_;
    const forms::Control* focus_ = nullptr;
    bool opened_ = false;
    bool syncing_ = false;
    bool blends_ = false;
    bool keyboardInUse_ = false;
};

}  // namespace desktop
