#include "text/bytes/StackBase.h"

#include <new>

StackBase::StackBase(Data initialPiece, std::size_t elementSize)
    : m_initialPiece{initialPiece.begin, initialPiece.end, nullptr},
      m_elementSize(elementSize),
      m_currentPiece(&m_initialPiece),
      m_sparePiece(nullptr),
      m_count(0),
      m_cursor(initialPiece.end) {}

StackBase::~StackBase() {
    PopAll();
    FreePiece(m_sparePiece);
}

void StackBase::FreePiece(Piece* piece) {
    if (piece) ::operator delete(piece);
}

unsigned char* StackBase::LowestElement(Piece const& piece) const {
    std::size_t capacity = static_cast<std::size_t>(piece.end - piece.begin) / m_elementSize;
    return piece.end - capacity * m_elementSize;
}

void* StackBase::Allocate() {
    if (static_cast<std::size_t>(m_cursor - m_currentPiece->begin) < m_elementSize) {
        Piece* next = m_sparePiece;
        if (next) {
            m_sparePiece = nullptr;
        } else {
            std::size_t capacity =
                static_cast<std::size_t>(m_currentPiece->end - m_currentPiece->begin) /
                m_elementSize;
            std::size_t bytes = (capacity ? 2 * capacity : 1) * m_elementSize;
            // The header is padded to the strictest fundamental alignment so elements stay
            // aligned.
            std::size_t header = (sizeof(Piece) + alignof(std::max_align_t) - 1) /
                                 alignof(std::max_align_t) * alignof(std::max_align_t);
            unsigned char* block = static_cast<unsigned char*>(::operator new(header + bytes));
            next = reinterpret_cast<Piece*>(block);
            next->begin = block + header;
            next->end = next->begin + bytes;
        }
        next->previous = m_currentPiece;
        m_currentPiece = next;
        m_cursor = next->end;
    }
    m_cursor -= m_elementSize;
    ++m_count;
    return m_cursor;
}

void StackBase::Pop() {
    m_cursor += m_elementSize;
    --m_count;
    if (m_cursor == m_currentPiece->end && m_currentPiece->previous) {
        FreePiece(m_sparePiece);
        m_sparePiece = m_currentPiece;
        m_currentPiece = m_currentPiece->previous;
        m_cursor = LowestElement(*m_currentPiece);
    }
}

void StackBase::Pop(std::size_t n) {
    while (n--) Pop();
}

void StackBase::PopAll() {
    Pop(m_count);
}
