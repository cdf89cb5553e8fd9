#pragma once
// An array of fixed-size elements that never move. The first piece is storage the caller
// provides; piece p after it holds firstPieceBytes << p bytes and comes from the heap on first
// use. Shrinking keeps one spare piece, so a push after a pop allocates nothing.

#include <cstddef>

#include "text/bytes/ConstData.h"

class ExtensibleArrayBase {
  public:
    static constexpr unsigned placeCount = 24;

    // The first piece must outlive the array and hold a whole number of elements (at least one).
    // No element is constructed or destroyed here.
    ExtensibleArrayBase(std::size_t elementSize, Data firstPiece);
    // Frees every heap piece.
    ~ExtensibleArrayBase();
    ExtensibleArrayBase(ExtensibleArrayBase const&) = delete;
    ExtensibleArrayBase& operator=(ExtensibleArrayBase const&) = delete;

    // Returns the storage of a new last element, allocating its piece on first use.
    // Throws ConstDataCapacityExceeded when all places are full, std::bad_alloc without memory.
    void* Allocate();
    // Drops the last n elements, and frees the pieces above the one that would hold twice the
    // remaining bytes.
    void Release(std::size_t n);
    // Drops every element and frees every heap piece.
    void ReleaseAll();

    // Returns the storage of the element at index; the caller keeps index below Count().
    void* Element(std::size_t index) const;
    std::size_t Count() const { return m_count; }
    // Returns the number of pieces that hold storage, the first piece included.
    unsigned PieceCount() const;

    // Returns the place number that holds a byte offset: the highest set bit of
    // offset / firstPieceBytes + 1.
    unsigned PlaceOf(std::size_t offset) const;

  private:
    std::size_t m_elementSize;
    std::size_t m_firstPieceBytes;
    std::size_t m_count;
    unsigned char* m_pieces[placeCount];
};

// Returns the index of the highest set bit of a non-zero value, found a byte at a time as the
// highest clear bit of its complement.
unsigned HighestSetBit(unsigned long long value);
