#pragma once
#include <QString>

// The progress of long work, as the routines of the books see it. ui/frmStatus shows it; the plain object
// shows nothing.
class Progress {
  public:
    virtual ~Progress() = default;
    virtual void begin(const QString& /*text*/, qint64 /*maximum*/) {}
    virtual void setText(const QString& /*text*/) {}
    virtual void setValue(qint64 /*value*/) {}
    virtual void end() {}

    static Progress& none();
};
