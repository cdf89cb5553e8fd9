#pragma once
// A stack of fixed-size elements that begins in storage the caller provides and continues in a
// chain of heap pieces, each twice the size of the one before. Elements never move. Inside each
// piece the stack grows downwards. At most one emptied piece is kept as a spare, so popping and
// pushing across a piece boundary allocates nothing.

#include <cstddef>

#include "text/bytes/ConstData.h"

class StackBase {
  public:
    // The initial storage must outlive the stack; no element is constructed or destroyed here.
    StackBase(Data initialPiece, std::size_t elementSize);
    // Frees every heap piece, the spare too.
    ~StackBase();
    StackBase(StackBase const&) = delete;
    StackBase& operator=(StackBase const&) = delete;

    // Returns the storage of a new top element. Throws std::bad_alloc if a piece can't be had.
    void* Allocate();
    // Drops the top element; the caller knows there is one.
    void Pop();
    // Drops the top n elements.
    void Pop(std::size_t n);
    // Drops every element.
    void PopAll();

    // Returns the storage of the top element; null when empty.
    void* Top() const { return m_count ? m_cursor : nullptr; }
    std::size_t Count() const { return m_count; }
    // Returns whether an emptied heap piece is kept for the next growth.
    bool HasSparePiece() const { return m_sparePiece != nullptr; }

  private:
    // A piece: its bytes, and the piece below it in the stack (null for the initial one).
    struct Piece {
        unsigned char* begin;
        unsigned char* end;
        Piece* previous;
    };

    // Returns where the lowest element of a full piece stands.
    unsigned char* LowestElement(Piece const& piece) const;
    static void FreePiece(Piece* piece);

    Piece m_initialPiece;
    std::size_t m_elementSize;
    Piece* m_currentPiece;
    Piece* m_sparePiece;
    std::size_t m_count;
    unsigned char* m_cursor;
};
