// SPDX-License-Identifier: GPL-3.0-or-later
// ByteBuffer: bytes that grow without being cleared first, which for the files of a search would
// cost as much as reading them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>

class ByteBuffer
{
public:
    char* data() { return m_bytes.get(); }
    const char* data() const { return m_bytes.get(); }
    std::size_t size() const { return m_size; }
    bool empty() const { return m_size == 0; }
    char operator[](std::size_t at) const { return m_bytes[at]; }
    operator std::string_view() const { return {m_bytes.get(), m_size}; }

    void clear() { m_size = 0; }
    void swap(ByteBuffer& other)
    {
        std::swap(m_bytes, other.m_bytes);
        std::swap(m_size, other.m_size);
        std::swap(m_room, other.m_room);
    }
    // The bytes behind the old ones are any.
    void resize(std::size_t size)
    {
        if (size > m_room) {
            const std::size_t room = std::max(size, m_room + m_room / 4);
            std::unique_ptr<char[]> grown(new char[room]);
            if (m_size > 0)
                std::memcpy(grown.get(), m_bytes.get(), m_size);
            m_bytes = std::move(grown);
            m_room = room;
        }
        m_size = size;
    }
    void assign(std::string_view bytes) // of another buffer
    {
        m_size = 0;
        append(bytes);
    }
    void append(std::string_view bytes) // of another buffer
    {
        const std::size_t old = m_size;
        resize(old + bytes.size());
        if (!bytes.empty())
            std::memcpy(m_bytes.get() + old, bytes.data(), bytes.size());
    }
    void drop(std::size_t bytes) // in front
    {
        m_size -= bytes;
        if (m_size > 0)
            std::memmove(m_bytes.get(), m_bytes.get() + bytes, m_size);
    }

private:
    std::unique_ptr<char[]> m_bytes;
    std::size_t m_size = 0;
    std::size_t m_room = 0;
};
