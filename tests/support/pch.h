#pragma once
#include <QtCore/QtCore>
#include <QtGui/QtGui>
#include <QtSql/QtSql>
#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>
#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// So that a failure shows the text and not its bytes.
inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}
