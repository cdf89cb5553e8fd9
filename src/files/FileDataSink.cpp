#include "files/FileDataSink.h"

#include "files/FileErrors.h"

void FileDataSink::Start() {
    if (!m_path) {
        throw FileNotOpenError(0);
    }
    m_writer.Start(*m_path, m_start);
}

void FileDataSink::Receive(ConstData data) {
    m_writer << data;
}

void FileDataSink::ReceiveEnd() {
    if (m_mode == flushOnEnd) {
        m_path->Flush();
    }
}
