#pragma once
// A text receiver that collects what it receives in one growing buffer in memory.

#include <algorithm>
#include <cstddef>

#include "text/unicode/UString.h"
#include "text/unicode/UTextReceiver.h"

template <class E>
class UStringBuilder : public UTextReceiver<E> {
  public:
    typedef typename E::Unit Unit;

    // Nothing is allocated before Start.
    explicit UStringBuilder(std::size_t initial)
        : initialCapacity(initial), capacity(0), m_buffer(nullptr), m_cursor(nullptr) {}
    ~UStringBuilder() override { delete[] m_buffer; }
    UStringBuilder(UStringBuilder const&) = delete;
    UStringBuilder& operator=(UStringBuilder const&) = delete;

    // Drops what was collected before and allocates initialCapacity units.
    void Start(E) override {
        Unit* fresh = new Unit[initialCapacity];
        delete[] m_buffer;
        m_buffer = fresh;
        m_cursor = fresh;
        capacity = initialCapacity;
    }

    // Appends the chunk, growing to the larger of the needed size and twice the old capacity.
    void Receive(ConstArrayOf<Unit> chunk) override {
        std::size_t incoming = chunk.Count();
        if (incoming == 0) return;
        std::size_t used = Used();
        if (used + incoming > capacity) {
            std::size_t grown = std::max(used + incoming, 2 * capacity);
            Unit* fresh = new Unit[grown];
            std::copy(m_buffer, m_cursor, fresh);
            delete[] m_buffer;
            m_buffer = fresh;
            m_cursor = fresh + used;
            capacity = grown;
        }
        m_cursor = std::copy(chunk.begin, chunk.end, m_cursor);
    }

    // Returns a view of what was collected; it isn't zero-terminated and lives until the next
    // Start or Receive.
    UStringRef<E> Content() const { return UStringRef<E>(m_buffer, m_cursor, false); }

    // Returns the number of units collected.
    std::size_t Used() const { return static_cast<std::size_t>(m_cursor - m_buffer); }

    std::size_t initialCapacity;
    std::size_t capacity;

  private:
    Unit* m_buffer;
    Unit* m_cursor;
};
