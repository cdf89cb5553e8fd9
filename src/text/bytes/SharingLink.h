#pragma once
// The shared part of a value shared by its copies: a count of holders guarded by its own mutex,
// so that copies may be made and dropped in different threads. The shared value itself is not
// guarded.

#include <utility>

#include "threads/Mutex.h"

// One holder's share of a control block with a count and a Mutex.
class SharingLink {
  public:
    // Makes a new block with a count of 1. Throws UnixPlatform::MutexError if the lock fails.
    SharingLink();
    // Takes the lock and adds one holder.
    SharingLink(SharingLink const& other);
    // Takes over the other's share without touching the count; the other is left empty.
    SharingLink(SharingLink&& other) noexcept : m_block(other.m_block) { other.m_block = nullptr; }
    // Takes the lock and subtracts one; the holder that brings the count to zero frees the block.
    ~SharingLink();
    // Copies, swaps, and lets the temporary go.
    SharingLink& operator=(SharingLink const& other);
    // Takes over the other's share, leaving it empty; this holder's old share is dropped.
    SharingLink& operator=(SharingLink&& other) noexcept {
        SharingLink taken(std::move(other));
        swap(taken);
        return *this;
    }

    // Returns whether this is the only holder; takes the lock.
    bool Alone() const;
    // Exchanges the blocks of the two holders; no lock is taken.
    void swap(SharingLink& other) noexcept;

    // Drops this holder's share now and returns whether it was the last, so that the caller frees
    // the shared value. The decision and the count change are one step under the lock, so two
    // holders dropped at once in two threads never both, nor neither, see themselves last.
    // The link is empty afterwards: Alone() is true and the destructor does nothing.
    bool Release();

  private:
    struct Block;
    Block* m_block;
};

inline void swap(SharingLink& a, SharingLink& b) noexcept {
    a.swap(b);
}
