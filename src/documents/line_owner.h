#pragma once
#include <QString>

// The lines of a document that is being entered, as their popup sees them: it works on the list and never
// touches the store's tables. Count and total follow by themselves.
template <class Line>
class LineOwner {
  public:
    virtual ~LineOwner() = default;
    // Whether a line with this key, the text of the first column, stands in the list.
    virtual bool hasLine(const QString& key) const = 0;
    virtual Line lineAt(int row) const = 0;
    virtual void addLine(const Line& line) = 0;
    virtual void insertLine(int row, const Line& line) = 0;  // before that row
    virtual void replaceLine(int row, const Line& line) = 0;
};
