#include "platform/ui/screen_registry.h"

#include "platform/ui/front_watch.h"

ScreenRegistry& ScreenRegistry::instance() {
    static ScreenRegistry registry;
    return registry;
}

void ScreenRegistry::add(const QString& name, Factory factory) { factories_[name] = std::move(factory); }

void ScreenRegistry::addWindow(const QString& name, Window window) { windows_[name] = std::move(window); }

bool ScreenRegistry::knows(const QString& name) const {
    return factories_.contains(name) || windows_.contains(name);
}

QStringList ScreenRegistry::names() const {
    QStringList names = factories_.keys();
    names.sort();
    return names;
}

ChildScreen* ScreenRegistry::opened(const QString& name) const {
    const auto found = std::ranges::find(open_, name, &QObject::objectName);
    return found == open_.end() ? nullptr : *found;
}

QList<ChildScreen*> ScreenRegistry::openScreens() const { return open_; }

ChildScreen* ScreenRegistry::open(const QString& name, const ScreenArguments& arguments) {
    if (ChildScreen* screen = opened(name)) return reopen(screen, arguments);
    if (windows_.contains(name)) {
        windows_[name](arguments);
        return nullptr;
    }
    return factories_.contains(name) ? make(factories_[name], arguments) : nullptr;
}

ChildScreen* ScreenRegistry::make(const Factory& factory, const ScreenArguments& arguments) {
    std::unique_ptr<ChildScreen> screen(factory());
    if (!screen || !screen->receive(arguments)) return nullptr;
    show(screen.get());
    return screen.release();
}

ChildScreen* ScreenRegistry::reopen(ChildScreen* screen, const ScreenArguments& arguments) {
    if (!screen->receive(arguments)) return nullptr;
    bringForward(screen);
    return screen;
}

void ScreenRegistry::bringForward(ChildScreen* screen) {
    if (host_ && screen->kind() == ChildScreen::Child) return host_->bringForward(screen);
    screen->show();
    screen->raise();
    screen->activateWindow();
}

// A screen that closes, or goes with its frame, is no longer open.
void ScreenRegistry::follow(ChildScreen* screen) {
    open_ += screen;
    const auto gone = [this, screen] { open_.removeOne(screen); };
    QObject::connect(screen, &ChildScreen::unloaded, screen, gone);
    QObject::connect(screen, &QObject::destroyed, screen, gone);
}

void ScreenRegistry::show(ChildScreen* screen) {
    if (open_.contains(screen)) return bringForward(screen);
    // Whoever opens it is at the screen where the focus has come by now.
    FrontWatch::instance().settle();
    follow(screen);
    if (host_ && screen->kind() == ChildScreen::Child)
        host_->host(screen);
    else if (screen->kind() == ChildScreen::Popup)
        screen->openFrom(ChildScreen::front(), dynamic_cast<QWidget*>(host_));
    else
        screen->show();
}
