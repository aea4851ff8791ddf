#include "books/posting_queue.h"

#include "books/books_test.h"

class PostingQueueTest : public BooksTest {
  protected:
    // What the saving of a document does.
    void queueAgain(const char* bookId, const char* reference, int date) {
        RemoveForPosting(store, bookId, reference);
        QueueBookForPosting(store, bookId, reference, "C1", day(date));
    }
    QString documents() {
        return column(
            "SELECT BookID || ':' || Reference || ':' || TransDate AS v FROM tblForPosting ORDER BY 1");
    }
};

TEST_F(PostingQueueTest, ADocumentWaitsOnceWithItsLatestDate) {
    queueAgain("S", "11-1001-2026", 1);
    queueAgain("S", "11-1001-2026", 2);
    queueAgain("P", "11-1001-2026", 3);
    EXPECT_EQ(documents(), "P:11-1001-2026:2026-01-03 S:11-1001-2026:2026-01-02");
    RemoveForPosting(store, "S", "11-1001-2026");
    EXPECT_EQ(documents(), "P:11-1001-2026:2026-01-03");
}

TEST_F(PostingQueueTest, AnItemWaitsOnce) {
    QueueItemForPosting(store, "A");
    QueueItemForPosting(store, "B");
    QueueItemForPosting(store, "a");
    EXPECT_EQ(column("SELECT COUNT(*) AS v FROM tblForPostingItem"), "2");
}

TEST_F(PostingQueueTest, EitherTableIsPending) {
    EXPECT_FALSE(HasPendingPosting(store));
    QueueItemForPosting(store, "A");
    EXPECT_TRUE(HasPendingPosting(store));
    write("DELETE FROM tblForPostingItem");
    queueAgain("S", "1", 1);
    EXPECT_TRUE(HasPendingPosting(store));
    write("DROP TABLE tblForPosting");
    EXPECT_FALSE(HasPendingPosting(store));
    QueueItemForPosting(store, "A");
    EXPECT_TRUE(HasPendingPosting(store));
}
