#include "text/bytes/SharingLink.h"

struct SharingLink::Block {
    unsigned long count = 1;
    UnixPlatform::Mutex mutex;
};

SharingLink::SharingLink() : m_block(new Block) {}

SharingLink::SharingLink(SharingLink const& other) : m_block(other.m_block) {
    if (!m_block) return;
    UnixPlatform::Mutex* token = UnixPlatform::WaitForMutex(m_block->mutex);
    ++m_block->count;
    UnixPlatform::ReleaseMutex(token);
}

SharingLink::~SharingLink() {
    Release();
}

SharingLink& SharingLink::operator=(SharingLink const& other) {
    SharingLink copy(other);
    swap(copy);
    return *this;
}

bool SharingLink::Alone() const {
    if (!m_block) return true;
    UnixPlatform::Mutex* token = UnixPlatform::WaitForMutex(m_block->mutex);
    bool alone = m_block->count == 1;
    UnixPlatform::ReleaseMutex(token);
    return alone;
}

void SharingLink::swap(SharingLink& other) noexcept {
    Block* block = m_block;
    m_block = other.m_block;
    other.m_block = block;
}

bool SharingLink::Release() {
    Block* block = m_block;
    if (!block) return false;
    m_block = nullptr;
    UnixPlatform::Mutex* token = UnixPlatform::WaitForMutex(block->mutex);
    bool last = --block->count == 0;
    UnixPlatform::ReleaseMutex(token);
    // Nobody else holds the block once the count is zero, so it may go without the lock.
    if (last) delete block;
    return last;
}
