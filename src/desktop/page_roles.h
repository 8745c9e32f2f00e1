#pragma once

class QWebEnginePage;

namespace desktop {

/// Tells screen readers what the looks of a panel's page tell the eye: which options are ticked,
/// which choice of a group holds, and what a field is for.
void tellRoles(QWebEnginePage& page);

}  // namespace desktop
