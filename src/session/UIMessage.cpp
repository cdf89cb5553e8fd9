#include "session/UIMessage.h"

UIMessage::UIMessage(UIMessage const& other)
    : m_type(other.m_type), m_text(MakeUString(other.m_text.begin, other.m_text.end, UTF8())) {}

UIMessage& UIMessage::operator=(UIMessage const& other) {
    if (this != &other) {
        m_type = other.m_type;
        m_text = MakeUString(other.m_text.begin, other.m_text.end, UTF8());
    }
    return *this;
}

unsigned long UIMessage::Length() const {
    return m_text.begin ? static_cast<unsigned long>(m_text.end - m_text.begin) : 0;
}
