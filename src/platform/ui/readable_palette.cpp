#include "platform/ui/readable_palette.h"

#include <QList>

#include <algorithm>
#include <cmath>

// Lines thinner than a pixel come out a little paler than their colour.
static constexpr double aimedContrast = readableContrast + 0.3;

static double linear(double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

static double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrastOf(const QColor& text, const QColor& background) {
    const double one = luminance(text), other = luminance(background);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

static QColor mixed(const QColor& from, const QColor& to, double part) {
    const auto mix = [part](double a, double b) { return static_cast<float>(a + (b - a) * part); };
    return QColor::fromRgbF(mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()),
                            mix(from.blueF(), to.blueF()));
}

static double weakest(const QColor& color, const QList<QColor>& others) {
    double least = 21;
    for (const QColor& other : others) least = std::min(least, contrastOf(color, other));
    return least;
}

// The colour, moved towards black or white until it can be told from all the others.
static QColor toldFrom(const QColor& color, const QList<QColor>& others) {
    constexpr double step = 0.05;
    const QColor end = weakest(Qt::white, others) > weakest(Qt::black, others) ? Qt::white : Qt::black;
    for (double part = 0; part < 1; part += step)
        if (const QColor moved = mixed(color, end, part); weakest(moved, others) >= aimedContrast)
            return moved;
    return end;
}

static QColor opaque(const QColor& color, const QColor& background) {
    return mixed(background, QColor(color.rgb()), color.alphaF());
}

static void moveText(QPalette& palette, QPalette::ColorGroup group, QPalette::ColorRole role,
                     const QList<QPalette::ColorRole>& grounds) {
    QList<QColor> backgrounds;
    for (const auto ground : grounds) backgrounds += palette.color(group, ground);
    const QColor text = opaque(palette.color(group, role), backgrounds.first());
    palette.setColor(group, role, toldFrom(text, backgrounds));
}

static void moveTexts(QPalette& palette, QPalette::ColorGroup group) {
    using P = QPalette;
    moveText(palette, group, P::Text, {P::Base, P::AlternateBase, P::Window, P::Button});
    moveText(palette, group, P::WindowText, {P::Window, P::Base});
    moveText(palette, group, P::ButtonText, {P::Button, P::Window, P::Base});
    moveText(palette, group, P::PlaceholderText, {P::Base, P::AlternateBase});
    moveText(palette, group, P::Link, {P::Window, P::Base, P::AlternateBase});
    moveText(palette, group, P::LinkVisited, {P::Window, P::Base, P::AlternateBase});
    moveText(palette, group, P::ToolTipText, {P::ToolTipBase});
}

// What is selected where the focus is not is told by a paler colour, with the text of any other row.
static void moveSelection(QPalette& palette) {
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    const QColor text = palette.color(QPalette::Active, QPalette::HighlightedText);
    const QColor highlight = toldFrom(palette.color(QPalette::Active, QPalette::Highlight), {text});
    palette.setColor(QPalette::Active, QPalette::Highlight, highlight);
    const QColor pale = mixed(base, highlight, 0.3);
    for (const auto group : {QPalette::Inactive, QPalette::Disabled}) {
        palette.setColor(group, QPalette::Highlight, pale);
        palette.setColor(group, QPalette::HighlightedText,
                         toldFrom(palette.color(QPalette::Active, QPalette::Text), {pale}));
    }
}

QPalette readablePalette(QPalette palette) {
    moveSelection(palette);
    // A field that is closed has the colour of its screen.
    palette.setColor(QPalette::Disabled, QPalette::Base, palette.color(QPalette::Active, QPalette::Window));
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        moveTexts(palette, group);
    return palette;
}
