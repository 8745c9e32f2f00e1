#include "desktop/grab_form.h"

#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

#include "desktop/looks.h"
#include "desktop/qt_desktop.h"

namespace desktop {

bool grabForm(const forms::Form& form, const std::string& path) {
    const auto* desktop = dynamic_cast<QtDesktop*>(&form.desktop());
    QWidget* plate = desktop == nullptr ? nullptr : desktop->plateOf(form);
    return plate != nullptr && plate->window()->grab().save(textOf(path), "PNG");
}

}  // namespace desktop
