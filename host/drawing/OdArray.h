// SPDX-License-Identifier: MIT
#pragma once

#include "OdError.h"

#include <algorithm>
#include <memory>
#include <new>
#include <vector>

/// A growing array whose copies share their elements until one of them is changed. Indexes outside
/// the array throw OdError_InvalidIndex; memory that can't be had throws OdError 9.
template <class T> class OdArray
{
public:
    using const_iterator = typename std::vector<T>::const_iterator;

    OdArray() = default;

    unsigned size() const { return m_items ? unsigned(m_items->size()) : 0; }
    unsigned length() const { return size(); }
    bool isEmpty() const { return size() == 0; }

    const T &at(unsigned index) const
    {
        requireIndex(index);
        return (*m_items)[index];
    }
    const T &operator[](unsigned index) const { return at(index); }
    T &operator[](unsigned index)
    {
        requireIndex(index);
        return own()[index];
    }
    const T &first() const { return at(0); }
    const T &last() const { return at(size() - 1); }

    void append(T value)
    {
        guardMemory([&] { own().push_back(std::move(value)); });
    }
    void push_back(T value) { append(std::move(value)); }
    void insertAt(unsigned index, T value)
    {
        if (index > size()) {
            throw OdError_InvalidIndex();
        }
        guardMemory([&] { own().insert(own().begin() + index, std::move(value)); });
    }
    void removeAt(unsigned index)
    {
        requireIndex(index);
        own().erase(m_items->begin() + index);
    }
    /// Lets the elements go. Other arrays that share them keep theirs.
    void clear() { m_items.reset(); }
    void resize(unsigned count)
    {
        guardMemory([&] { own().resize(count); });
    }

    /// @return the index of the first equal element at or behind start, or -1.
    int find(const T &value, unsigned start = 0) const
    {
        for (unsigned i = start; i < size(); ++i) {
            if ((*m_items)[i] == value) {
                return int(i);
            }
        }
        return -1;
    }
    bool contains(const T &value) const { return find(value) >= 0; }

    const_iterator begin() const { return m_items ? m_items->cbegin() : emptyItems().cbegin(); }
    const_iterator end() const { return m_items ? m_items->cend() : emptyItems().cend(); }

    /// True when both arrays are the very same elements in memory.
    bool sharesWith(const OdArray &other) const { return m_items == other.m_items; }

    friend bool operator==(const OdArray &a, const OdArray &b)
    {
        return a.sharesWith(b)
            || (a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin()));
    }

private:
    static const std::vector<T> &emptyItems()
    {
        static const std::vector<T> s_none;
        return s_none;
    }
    void requireIndex(unsigned index) const
    {
        if (index >= size()) {
            throw OdError_InvalidIndex();
        }
    }
    template <class Action> static void guardMemory(Action action)
    {
        try {
            action();
        } catch (const std::bad_alloc &) {
            throw OdError(OdResult::kOutOfMemory, "There is not enough memory for the array.");
        }
    }
    std::vector<T> &own()
    {
        guardMemory([&] {
            if (!m_items) {
                m_items = std::make_shared<std::vector<T>>();
            } else if (m_items.use_count() > 1) {
                m_items = std::make_shared<std::vector<T>>(*m_items);
            }
        });
        return *m_items;
    }

    std::shared_ptr<std::vector<T>> m_items;
};
