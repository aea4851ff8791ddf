#pragma once
#include <QObject>
#include <stdexcept>

// The control of this name below a screen. A name that does not stand there is an error of the program: an
// assertion that tells it where assertions hold, std::logic_error everywhere else.
template <class Control>
Control* namedControl(const QObject* screen, const QString& name) {
    if (auto* control = screen->findChild<Control*>(name)) return control;
    const QByteArray text = QString("%1 has no control %2").arg(screen->objectName(), name).toUtf8();
    Q_ASSERT_X(false, "namedControl", text.constData());
    throw std::logic_error(text.constData());
}
