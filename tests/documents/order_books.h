#pragma once
#include "books/balances.h"
#include "documents/order_document.h"
#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "platform/clock.h"
#include "platform/parsing.h"
#include "purchases/purchase_document.h"
#include "sales/sales_document.h"
#include "support/test_store.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

inline Currency money(const char* text) { return parseNumber(text).value(); }

// What a box says, as one text: "title: text".
inline std::string said(const Box& box) { return (box.title + ": " + box.text).toStdString(); }
inline QString focusOf(const Outcome& outcome) {
    const auto* fault = std::get_if<Fault>(&outcome);
    return fault ? fault->focus : QString();
}
inline std::string said(const Outcome& outcome) {
    if (const auto* fault = std::get_if<Fault>(&outcome)) return said(fault->box);
    if (const auto* question = std::get_if<Question>(&outcome)) return "? " + said(question->box);
    return "done";
}

// A small firm's books on the 3rd of March 2026, in the session's store: two items, one contact that is
// customer and supplier.
class OrderBooks : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        Clock::freeze(QDateTime(QDate(2026, 3, 3), QTime(9, 30)));
        addItem(store, {"I1", "Rice", money("10"), money("15"), money("13")});
        addItem(store, {"I2", "Sugar", money("4"), money("6"), money("5")});
        addContact(store, {.id = "C1",
                           .name = "Nena",
                           .discount = money("12.5"),
                           .terms = money("30"),
                           .creditLimit = money("5000")});
    }

    static OrderLine line(const char* item, const char* ordered, const char* served, const char* price,
                          const char* discount = "0") {
        return makeOrderLine(item, item, "PC", money(ordered), money(served), money(price), money(discount));
    }

    OrderDocument order(const OrderBook& book, const QList<OrderLine>& lines, const char* date = nullptr) {
        OrderDocument document = newOrder(store, book);
        document.contactName = "Nena";
        document.lines = lines;
        if (date) document.date = date;
        return document;
    }

    // Saves an order and gives its number.
    QString saved(const OrderBook& book, const QList<OrderLine>& lines, const char* date = nullptr) {
        const OrderDocument document = order(book, lines, date);
        EXPECT_EQ(said(saveOrder(store, book, document)), "done");
        return document.code;
    }

    OrderDocument reopened(const OrderBook& book, const QString& key) {
        OrderDocument document = loadOrder(store, book, key).document;
        document.lines = loadOrderLines(store, book, key);
        return document;
    }

    // The rows of a query as they are stored, each as "value | value": amounts count ten-thousandths.
    std::vector<std::string> rows(const Sql& query, const QStringList& columns) {
        std::vector<std::string> texts;
        for (Recordset set = store.execute(query); !set.eof(); set.moveNext()) {
            QStringList values;
            for (const QString& column : columns) values += set.value(column).toString();
            texts.push_back(values.join(" | ").toStdString());
        }
        return texts;
    }

    Currency itemFigure(const char* code, const char* column) {
        return store.execute({"SELECT * FROM tblItemMaster WHERE ItemCode = ?", {code}}).currency(column);
    }

    Connection& store = StoreConnection();
};
