// The growable array of every list of the model. Slots beyond `Count` are always readable and zero, which
// the check tree relies on: reading links 0 and 1 of a check without links gives null. Most lists of most
// checks stay empty, so the slots take memory only when the first of them is used.
#pragma once

#include <algorithm>
#include <memory>
#include <utility>

template <class T> class CGrowArray {
public:
    CGrowArray() = default;
    CGrowArray(const CGrowArray& other) { *this = other; }
    CGrowArray& operator=(const CGrowArray& other) {
        if (this == &other)
            return *this;
        Count = other.Count;
        Capacity = other.Capacity;
        GrowBy = other.GrowBy;
        Data = other.Data ? std::make_unique<T[]>(static_cast<size_t>(Capacity)) : nullptr;
        std::copy_n(other.Data.get(), Count, Data.get());
        return *this;
    }

    T& operator[](int index) {
        Allocate();
        return Data[static_cast<size_t>(index)];
    }
    const T& operator[](int index) const {
        static const T zero = T();
        return Data ? Data[static_cast<size_t>(index)] : zero;
    }
    T* begin() { return Data.get(); }
    T* end() { return Data.get() + Count; }
    const T* begin() const { return Data.get(); }
    const T* end() const { return Data.get() + Count; }

    // Result: the index of the new element.
    int Add(T value) {
        if (Count == Capacity)
            Grow();
        Allocate();
        Data[static_cast<size_t>(Count)] = std::move(value);
        return Count++;
    }

    // False for an index that is not in use.
    bool RemoveAt(int index) {
        if (index < 0 || index >= Count)
            return false;
        std::move(begin() + index + 1, end(), begin() + index);
        Data[static_cast<size_t>(--Count)] = T();
        return true;
    }

    bool Remove(const T& value) {
        return RemoveAt(static_cast<int>(std::find(begin(), end(), value) - begin()));
    }

    void Clear() {
        if (Capacity == StartCapacity)
            std::fill(begin(), end(), T());
        else
            Data.reset();
        Count = 0;
        Capacity = StartCapacity;
        GrowBy = 1;
    }

    static constexpr int StartCapacity = 10;

    std::unique_ptr<T[]> Data; // `Capacity` slots, or null while none has been used
    int Count = 0;
    int Capacity = StartCapacity;
    int GrowBy = 1;

private:
    void Allocate() {
        if (!Data)
            Data = std::make_unique<T[]>(static_cast<size_t>(Capacity));
    }

    // The step itself grows: by 3 while it is below 10, then by a fifth.
    void Grow() {
        auto larger = std::make_unique<T[]>(static_cast<size_t>(Capacity + GrowBy));
        std::move(begin(), end(), larger.get());
        Data = std::move(larger);
        Capacity += GrowBy;
        GrowBy = GrowBy < 10 ? GrowBy + 3 : static_cast<int>(GrowBy * 1.2);
    }
};
