#include "text/bytes/ExtensibleArrayBase.h"

#include <new>

#include "text/bytes/Bits.h"

unsigned HighestSetBit(unsigned long long value) {
    for (int byte = 7; byte >= 0; --byte) {
        unsigned char complement = static_cast<unsigned char>(~(value >> (8 * byte)));
        if (complement != 0xFF) return 8 * static_cast<unsigned>(byte) + Bits::lastZero[complement];
    }
    return 0;
}

ExtensibleArrayBase::ExtensibleArrayBase(std::size_t elementSize, Data firstPiece)
    : m_elementSize(elementSize), m_firstPieceBytes(firstPiece.Size()), m_count(0), m_pieces() {
    m_pieces[0] = firstPiece.begin;
}

ExtensibleArrayBase::~ExtensibleArrayBase() {
    ReleaseAll();
}

unsigned ExtensibleArrayBase::PlaceOf(std::size_t offset) const {
    return HighestSetBit(offset / m_firstPieceBytes + 1);
}

void* ExtensibleArrayBase::Element(std::size_t index) const {
    std::size_t offset = index * m_elementSize;
    // Most arrays never leave the first piece; that case needs no place arithmetic.
    if (offset < m_firstPieceBytes) return m_pieces[0] + offset;
    unsigned place = PlaceOf(offset);
    // Place p begins at byte offset (2^p - 1) * firstPieceBytes.
    std::size_t placeStart = ((std::size_t(1) << place) - 1) * m_firstPieceBytes;
    return m_pieces[place] + (offset - placeStart);
}

void* ExtensibleArrayBase::Allocate() {
    std::size_t offset = m_count * m_elementSize;
    if (offset < m_firstPieceBytes) {
        ++m_count;
        return m_pieces[0] + offset;
    }
    unsigned place = PlaceOf(offset);
    if (place >= placeCount) throw ConstDataCapacityExceeded();
    if (!m_pieces[place]) {
        m_pieces[place] = static_cast<unsigned char*>(::operator new(m_firstPieceBytes << place));
    }
    ++m_count;
    return Element(m_count - 1);
}

void ExtensibleArrayBase::Release(std::size_t n) {
    m_count -= n;
    unsigned keep = PlaceOf(2 * m_count * m_elementSize);
    // Pieces are taken in order, so the first empty place ends the ones in use.
    for (unsigned place = keep + 1; place < placeCount && m_pieces[place]; ++place) {
        ::operator delete(m_pieces[place]);
        m_pieces[place] = nullptr;
    }
}

void ExtensibleArrayBase::ReleaseAll() {
    m_count = 0;
    for (unsigned place = 1; place < placeCount && m_pieces[place]; ++place) {
        ::operator delete(m_pieces[place]);
        m_pieces[place] = nullptr;
    }
}

unsigned ExtensibleArrayBase::PieceCount() const {
    unsigned pieces = 0;
    for (unsigned char* piece : m_pieces) pieces += piece != nullptr;
    return pieces;
}
