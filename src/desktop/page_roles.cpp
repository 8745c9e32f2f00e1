#include "desktop/page_roles.h"

#include "desktop/browser_page.h"

namespace desktop {

void tellRoles(QWebEnginePage& page) {
    // The links of a panel look like boxes and buttons by their classes alone.
    tellPage(page, QStringLiteral(R"((function(){
        const all = (classes) => document.querySelectorAll(classes);
        const has = (one, name) => String(one.classList.contains(name));
        const name = (one, by) => { if (by) one.setAttribute('aria-label', by.textContent); };
        for (const row of all('.opt-row')) {
            row.setAttribute('role', 'checkbox');
            row.setAttribute('aria-checked', has(row, 'checked'));
            row.setAttribute('aria-disabled', has(row, 'disabled'));
            name(row, row.querySelector('.opt-label'));
        }
        for (const chip of all('.choice-chip')) {
            chip.setAttribute('role', 'radio');
            chip.setAttribute('aria-checked', has(chip, 'selected'));
            chip.setAttribute('aria-disabled', has(chip, 'disabled'));
        }
        for (const group of all('.choice-group')) {
            group.setAttribute('role', 'radiogroup');
            name(group, group.querySelector('.choice-title'));
        }
        for (const button of all('.tool-btn')) button.setAttribute('role', 'button');
        for (const row of all('.field-row')) {
            const field = row.querySelector('input,textarea');
            if (field) name(field, row.querySelector('.field-label'));
        }
    })())"));
}

}  // namespace desktop
