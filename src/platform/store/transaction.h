#pragma once

class Connection;

// One unit of work: everything since its making is undone when it goes out of scope without commit().
// The outermost takes the write lock at once; one inside another is a savepoint.
class Transaction {
  public:
    explicit Transaction(Connection& connection);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void commit();

  private:
    Connection& connection_;
    int level_;
    bool open_ = true;
};
