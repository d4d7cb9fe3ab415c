#pragma once

// A fixed row of values that is indexed with the ints the rules calculate with. Plain data: it is
// copied, compared and filled as a whole. Going outside is caught by the sanitizers.
template <typename T, int N> struct Table {
    T items[N];

    constexpr T& operator[](int i) { return items[i]; }
    constexpr const T& operator[](int i) const { return items[i]; }
    constexpr T* begin() { return items; }
    constexpr T* end() { return items + N; }
    constexpr const T* begin() const { return items; }
    constexpr const T* end() const { return items + N; }
    static constexpr int size() { return N; }

    friend constexpr bool operator==(const Table&, const Table&) = default;
};

template <typename T, int ROWS, int COLUMNS> using Table2 = Table<Table<T, COLUMNS>, ROWS>;

// A table with the same value everywhere.
template <typename T, int N> constexpr Table<T, N> filled(const T& value)
{
    Table<T, N> table{};
    for (T& item : table)
        item = value;
    return table;
}

template <typename T, int ROWS, int COLUMNS>
constexpr Table2<T, ROWS, COLUMNS> filled2(const T& value)
{
    return filled<Table<T, COLUMNS>, ROWS>(filled<T, COLUMNS>(value));
}
