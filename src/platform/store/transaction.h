#pragma once

class Connection;

// Who takes the store first when several workstations wait for it. A long pass lets all others go before it.
enum class Turn { Any, Last };

// One unit of work: everything since its making is undone when it goes out of scope without commit().
// The outermost takes the write lock at once; one inside another is a savepoint.
class Transaction {
  public:
    explicit Transaction(Connection& connection, Turn turn = Turn::Any);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void commit();

  private:
    Connection& connection_;
    int level_;
    bool open_ = true;
};
