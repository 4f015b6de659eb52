#pragma once

namespace quillomat {

/// Sorts the entries `lower` to `upper`, both included, of something that can only be compared and swapped by index.
///
/// `is_less(a, b)` compares two entries, `swap(a, b)` exchanges them, and `random()` returns a number in [0, 1) that
/// chooses the pivot. Equal entries may end up in any order. Only the smaller side is sorted by recursion, so that the
/// depth is logarithmic.
template <typename IsLess, typename Swap, typename Random>
void quick_sort(int lower, int upper, const IsLess& is_less, const Swap& swap, const Random& random) {
    while (lower < upper) {
        if (upper - lower == 1) {
            if (is_less(upper, lower)) swap(lower, upper);
            return;
        }
        // Make a random entry the pivot and put it last.
        swap(lower + static_cast<int>((upper - lower + 1) * random()), upper);
        int i = lower;
        int j = upper;
        while (i < j) {
            while (i < j && !is_less(upper, i)) ++i;
            while (j > i && !is_less(j, upper)) --j;
            if (i < j) swap(i, j);
        }
        swap(i, upper);

        // The entries just before the pivot that are equal to it are in place. Sorting them, too, would take quadratic
        // time if all entries are equal.
        int left_end = i - 1;
        while (left_end > lower && !is_less(left_end, i)) --left_end;
        if (i - lower < upper - i) {
            quick_sort(lower, left_end, is_less, swap, random);
            lower = i + 1;
        } else {
            quick_sort(i + 1, upper, is_less, swap, random);
            upper = left_end;
        }
    }
}

}  // namespace quillomat
