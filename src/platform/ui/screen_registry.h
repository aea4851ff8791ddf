#pragma once
#include "platform/ui/child_screen.h"

#include <QHash>
#include <functional>

// Shows child screens: the main window. Without one, screens open as windows of their own. Popups are not its
// business: they are windows over it.
class ScreenHost {
  public:
    virtual ~ScreenHost() = default;
    virtual void host(ChildScreen* screen) = 0;          // a new one: put it in place and show it
    virtual void bringForward(ChildScreen* screen) = 0;  // an open one
};

// The screens of the program, by name. Each floor registers its own; whoever wants one opens it by name.
class ScreenRegistry {
  public:
    using Factory = std::function<ChildScreen*()>;
    using Window = std::function<void(const ScreenArguments&)>;

    static ScreenRegistry& instance();
    void add(const QString& name, Factory factory);
    // Something that is no child screen (the main window, a modal screen): how to show it.
    void addWindow(const QString& name, Window window);
    bool knows(const QString& name) const;
    QStringList names() const;  // of the screens, windows left out, in the order of the alphabet

    // Shows the screen: a new one, or the open one brought forward. Null for a name that is not known, for a
    // window, and when the open one refused (see ChildScreen::receive).
    ChildScreen* open(const QString& name, const ScreenArguments& arguments = {});
    ChildScreen* opened(const QString& name) const;  // the open one, or null
    QList<ChildScreen*> openScreens() const;         // in the order they were opened
    // Any screen not registered by name, such as a popup with its own set-up: hosted like the others.
    void show(ChildScreen* screen);

    void setHost(ScreenHost* host) { host_ = host; }
    ScreenHost* host() const { return host_; }

  private:
    ChildScreen* make(const Factory& factory, const ScreenArguments& arguments);
    ChildScreen* reopen(ChildScreen* screen, const ScreenArguments& arguments);
    void bringForward(ChildScreen* screen);
    void follow(ChildScreen* screen);

    QHash<QString, Factory> factories_;
    QHash<QString, Window> windows_;
    QList<ChildScreen*> open_;
    ScreenHost* host_ = nullptr;
};
