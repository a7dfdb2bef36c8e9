// Exchange of two rows or two columns.
#include "frame/entry.h"
#include "matrix/rows.h"

namespace sig5d::SIG5D_VARIANT {
namespace {

template <class T> void exchange_rows(T* a, unsigned row1, unsigned row2, unsigned cols, unsigned stride)
{
    exchange_runs(a + row1 * size_t(stride), a + row2 * size_t(stride), cols);
}

// One pass over the rows: where the columns lie in one cache line, it is fetched once.
template <class T> void exchange_columns(T* a, unsigned col1, unsigned col2, unsigned rows, unsigned stride)
{
    T *x = a + col1, *y = a + col2;
    for (size_t i = 0; i < rows; ++i) {
        const T value = *x;
        *x = *y;
        *y = value;
        x += stride;
        y += stride;
    }
}

} // namespace
#include "entries/matrix/exchange.inc"
} // namespace sig5d::SIG5D_VARIANT
