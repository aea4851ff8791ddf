#include "demo/demo_trade.h"

#include <gtest/gtest.h>

namespace {
QList<DemoDocument> tradeUntil(const QDate& lastDay) {
    return DemoTrade(demoContacts(), demoItems(), lastDay).documents();
}

QString told(const DemoDocument& document, const QDate& lastDay) {
    QString text = document.contact + QString::number(document.date.daysTo(lastDay));
    for (const DemoLine& line : document.lines)
        text += QString(" %1:%2:%3").arg(line.item).arg(line.moved).arg(line.price.toPlainText());
    return text;
}
}  // namespace

TEST(DemoTrade, SellsNothingThatIsNotThereAndEndsOnTheLastDay) {
    const QDate lastDay(2026, 3, 31);
    const QList<DemoDocument> documents = tradeUntil(lastDay);
    QHash<int, int> stock;
    int sales = 0;
    for (const DemoDocument& document : documents) {
        sales += document.isSale ? 1 : 0;
        for (const DemoLine& line : document.lines) {
            stock[line.item] += document.isSale ? -line.moved : line.moved;
            EXPECT_GE(stock[line.item], 0) << qPrintable(document.date.toString());
        }
    }
    EXPECT_EQ(sales, DemoTrade::saleCount);
    EXPECT_EQ(documents.size() - sales, DemoTrade::purchaseCount);
    EXPECT_EQ(documents.last().date, lastDay);
}

TEST(DemoTrade, IsTheSameTradeEveryDayButForItsDates) {
    const QDate one(2026, 11, 22), other(2028, 3, 1);
    const auto a = tradeUntil(one), b = tradeUntil(other);
    ASSERT_EQ(a.size(), b.size());
    for (qsizetype i = 0; i < a.size(); ++i) ASSERT_EQ(told(a[i], one), told(b[i], other)) << i;
}
