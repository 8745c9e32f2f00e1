#include "desktop/desktop_application.h"

#include <QtCore/QLoggingCategory>
#include <QtGui/QFont>
#include <QtGui/QIcon>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QToolTip>
#include <unistd.h>

#include <clocale>

#include "desktop/looks.h"
#include "furniture/palette.h"

/// The pictures are part of a library, which the linker takes only what is asked for of.
static void keepIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace desktop {

namespace {

std::vector<std::string>& variablesSet() {
    static std::vector<std::string> names;
    return names;
}

void setUnlessSet(const char* name, const QByteArray& value) {
    if (qEnvironmentVariableIsSet(name)) return;
    qputenv(name, value);
    variablesSet().emplace_back(name);
}

QtMessageHandler usualMessages = nullptr;

/// The engine says that it misses OpenGL, which is as it should be.
void passOnUnlessOfOpenGl(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.contains(u"OpenGL context") && !text.contains(u"No suitable graphics backend"))
        usualMessages(type, context, text);
}

void prepareBrowserEngine() {
    // Panels of text need no graphics card, and without one the engine looks the same on every
    // machine and starts faster.
    setUnlessSet("QT_QUICK_BACKEND", "software");
    setUnlessSet("QTWEBENGINE_CHROMIUM_FLAGS", "--disable-gpu");
    // Nothing is drawn by OpenGL, and to look for it takes two fifths of a command's start.
    setUnlessSet("QT_XCB_GL_INTEGRATION", "none");
    usualMessages = qInstallMessageHandler(passOnUnlessOfOpenGl);
    // The engine's sandbox refuses to work for the administrator, and then no page would come at
    // all. Nobody else goes without it.
    if (geteuid() == 0) setUnlessSet("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext*=false"));
}

/// The forms are laid out for this font. Where the system has not got it, the one of the same width
/// that the pages of the browser view fall back on too.
void prepareFonts() {
    QFont::insertSubstitutions(QStringLiteral("Tahoma"), {QStringLiteral("Liberation Sans"),
                                                          QStringLiteral("DejaVu Sans Condensed"),
                                                          QStringLiteral("DejaVu Sans")});
}

/// As dark as the forms.
void prepareToolTips() {
    QPalette colours = QToolTip::palette();
    colours.setColor(QPalette::ToolTipBase, colourOf(furniture::palette::ThemeGroundDeep));
    colours.setColor(QPalette::ToolTipText, colourOf(furniture::palette::ThemeText));
    QToolTip::setPalette(colours);
    QToolTip::setFont(fontOf({.name = "Tahoma", .sizePt = 9}));
}

constexpr int barWidth = 12;
constexpr int shortestHandle = 28;

QRect handleOf(const QStyleOptionSlider& bar) {
    const bool upright = bar.orientation == Qt::Vertical;
    const int room = upright ? bar.rect.height() : bar.rect.width();
    const int range = bar.maximum - bar.minimum;
    if (range <= 0) return bar.rect;
    const auto share = static_cast<double>(bar.pageStep) / (range + bar.pageStep);
    const int length = std::min(room, std::max(shortestHandle, static_cast<int>(room * share)));
    const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                      room - length, bar.upsideDown);
    return upright ? QRect(bar.rect.left(), bar.rect.top() + start, bar.rect.width(), length)
                   : QRect(bar.rect.left() + start, bar.rect.top(), length, bar.rect.height());
}

void drawScrollBar(const QStyleOptionSlider& bar, QPainter& painter) {
    const QColor ground = bar.palette.color(QPalette::Base);
    painter.save();
    painter.fillRect(bar.rect, blend(ground, textColourOn(ground), 0.05));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const bool held = bar.state.testFlag(QStyle::State_Sunken);
    const bool hovered = bar.state.testFlag(QStyle::State_MouseOver);
    painter.setBrush(blend(ground, textColourOn(ground), held ? 0.5 : hovered ? 0.4 : 0.28));
    painter.drawRoundedRect(QRectF(handleOf(bar)).adjusted(3, 3, -3, -3), 3, 3);
    painter.restore();
}

/// The toolkit's neutral style with slim scroll bars and without its dotted focus frames: the views
/// mark the focus themselves.
class DesktopStyle final : public QProxyStyle {
public:
    DesktopStyle();

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                       SubControl part, const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                  const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* answer) const override;
};

DesktopStyle::DesktopStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void DesktopStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && bar != nullptr) {
        drawScrollBar(*bar, *painter);
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect DesktopStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                   SubControl part, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || bar == nullptr) {
        return QProxyStyle::subControlRect(control, option, part, widget);
    }
    const QRect handle = handleOf(*bar);
    const bool upright = bar->orientation == Qt::Vertical;
    QRect area = bar->rect;
    switch (part) {
        case SC_ScrollBarSlider:
            return handle;
        case SC_ScrollBarGroove:
            return area;
        case SC_ScrollBarSubPage:
            upright ? area.setBottom(handle.top() - 1) : area.setRight(handle.left() - 1);
            return area;
        case SC_ScrollBarAddPage:
            upright ? area.setTop(handle.bottom() + 1) : area.setLeft(handle.right() + 1);
            return area;
        default:
            return {};
    }
}

void DesktopStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    if (element == PE_FrameFocusRect) return;
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

int DesktopStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                              const QWidget* widget) const {
    if (metric == PM_ScrollBarExtent) return barWidth;
    if (metric == PM_ScrollBarSliderMin) return shortestHandle;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int DesktopStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* answer) const {
    // Tips soon enough to be read, and no animation: an idle program shall do nothing.
    if (hint == SH_ToolTip_WakeUpDelay) return 450;
    if (hint == SH_Widget_Animation_Duration) return 0;
    if (hint == SH_ScrollBar_Transient) return 0;
    return QProxyStyle::styleHint(hint, option, widget, answer);
}

}  // namespace

struct DesktopApplication::Toolkit {
    Toolkit(int count, char** arguments)
        : argumentCount(count),
          application(argumentCount, arguments) {}

    int argumentCount;  ///< the toolkit keeps a reference to it
    QApplication application;
};

DesktopApplication::DesktopApplication(int argumentCount, char** arguments) {
    prepareBrowserEngine();
    QCoreApplication::setApplicationName(QStringLiteral("Murvane"));
    QGuiApplication::setDesktopFileName(QStringLiteral("murvane"));
    toolkit_ = std::make_unique<Toolkit>(argumentCount, arguments);
    // The toolkit takes over the user's locale; numbers in files and protocols keep their point.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new DesktopStyle);
    prepareFonts();
    prepareToolTips();
    keepIcons();
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/murvane.svg")));
}

DesktopApplication::~DesktopApplication() = default;

const std::vector<std::string>& variablesForToolkit() {
    return variablesSet();
}

}  // namespace desktop
