// Plans of transforms with mixed radices: how a length is taken apart, sizes and tables. Compiled once, for size
// (cold); every variant reads the same plan.
#include "signal/processing/fft/mixed_layout.h"
#include "kernel/libm.h"

namespace sig5d {
namespace {

constexpr i64 aligned(i64 bytes) { return (bytes + 63) & -64; }

// The passes of a tile: first the odd radices, then those of the powers of two, as many eights as there are and no two
// beside an eight. The largest comes last, where no factors are to be multiplied by.
[[gnu::cold, gnu::noinline]] MixedTile tileOf(i64 length)
{
    MixedTile tile = {static_cast<i32>(length), 0, {}, 0, 0, 0};
    auto add = [&](i64 radix) { tile.radix[tile.passes++] = static_cast<u8>(radix); };
    int twos = 0;
    for (; length % 2 == 0; length /= 2) ++twos;
    for (i64 p = 3; p <= largestRadix; p += 2)
        for (; length % p == 0; length /= p) add(p);
    if (twos % 3 == 1 && twos > 1) {
        add(4);
        add(4);
        twos -= 4;
    }
    if (twos % 3) add(twos % 3 == 1 ? 2 : 4);
    for (; twos >= 3; twos -= 3) add(8);
    return tile;
}

// What a tile costs, in about half a cycle of a processor with four lanes.
[[gnu::cold, gnu::noinline]] i64 costOf(const MixedTile& tile)
{
    i64 row = 14;
    for (int i = 0; i < tile.passes; ++i) row += tile.radix[i] > 8 ? 8 + 2 * tile.radix[i] : 4 + tile.radix[i];
    return 40 + 20 * tile.passes + row * tile.length;
}

i64 groups(i64 n) { return (n + 3) / 4; }

// The matrix whose transform takes the fewest operations; none: columns = 0.
[[gnu::cold, gnu::noinline]] MixedPlan layout(i64 points)
{
    MixedPlan best = {};
    i64 least = 0;
    auto look = [&](i64 rows, i64 columns) {
        const MixedTile ofColumns = tileOf(rows), ofRows = tileOf(columns);
        const i64 kept = rows / 2 + 1, pairs = (columns + 1) / 2;
        const i64 cost = groups(pairs) * costOf(ofColumns) + groups(kept) * costOf(ofRows);
        if (pairs < 4 || (least && cost >= least)) return;
        least = cost;
        best = {points, rows, columns, kept, 4 * groups(kept), pairs, ofColumns, ofRows, 0, 0, 0, 0};
    };
    for (i64 side = 2; side * side <= points; ++side)
        if (points % side == 0) {
            look(side, points / side);
            look(points / side, side);
        }
    // Lines a multiple of 512 bytes apart would compete for the same places in the first cache.
    if (best.stride % 32 == 0) best.stride += 4;

    i64 end = aligned(sizeof(MixedPlan));
    auto take = [&](i64 bytes) {
        const i64 place = end;
        end = aligned(end + bytes);
        return place;
    };
    MixedTile* const tiles[] = {&best.ofColumns, &best.ofRows};
    for (MixedTile* tile : tiles) {
        i64 turns = 0, circles = 0, size = tile->length;
        for (int i = 0; i < tile->passes; ++i) {
            const i64 r = tile->radix[i];
            turns += (size / r - 1) * (r - 1);
            if (r > 8) circles += r;
            size /= r;
        }
        tile->turns = take(16 * turns);
        tile->circle = take(16 * circles);
        tile->places = take(4 * i64(tile->length));
    }
    const i64 filled = 4 * groups(best.kept);
    best.turns = take(16 * filled * best.columns);
    best.taken = take(8 * filled);
    best.given = take(8 * filled);
    best.bytes = end;
    return best;
}

f64* setTurn(f64* place, i64 k, i64 n, f64 scale = 1.0)
{
    const libm::CosSin t = libm::cosSinTurn(-k, n);
    place[0] = scale * t.cos;
    place[1] = scale * t.sin;
    return place + 2;
}

[[gnu::cold, gnu::noinline]] void setTile(u8* plan, const MixedTile& tile)
{
    f64* turn = reinterpret_cast<f64*>(plan + tile.turns);
    f64* circle = reinterpret_cast<f64*>(plan + tile.circle);
    i32* const places = reinterpret_cast<i32*>(plan + tile.places);
    places[0] = 0;
    i64 known = 1, size = tile.length;
    for (int i = 0; i < tile.passes; ++i) {
        const i64 r = tile.radix[i], part = size / r;
        for (i64 p = 1; p < part; ++p)
            for (i64 k = 1; k < r; ++k) turn = setTurn(turn, p * k, size);
        if (r > 8)
            for (i64 j = 0; j < r; ++j) circle = setTurn(circle, j, r);
        // The pass sends value f = k modulo r to part k of its block.
        for (i64 k = r - 1; k >= 0; --k)
            for (i64 f = 0; f < known; ++f) places[f + known * k] = places[f] + static_cast<i32>(k * part);
        known *= r;
        size = part;
    }
}

} // namespace

// A large radix pays where enough rows or columns go beside it to fill vectors.
bool mixedHas(i64 points)
{
    i64 rest = points, largest = 1;
    for (i64 p = 2; p <= largestRadix; ++p)
        for (; rest % p == 0; rest /= p) largest = p;
    return rest == 1 && points >= 64 && points / largest >= (largest > 37 ? 5 : 2);
}

i64 mixedPlanBytes(i64 points) { return layout(points).bytes; }
i64 mixedSpectrumBytes(i64 points)
{
    const MixedPlan plan = layout(points);
    return aligned(8 * lineDoubles(plan) * plan.columns);
}
// A line for each column, two tiles, and the rows that an odd radix takes.
i64 mixedWorkBytes(i64 points)
{
    const MixedPlan plan = layout(points);
    return aligned(8 * lineDoubles(plan) * plan.columns) + 8 * rowDoubles * (2 * longerSide(plan) + largestRadix);
}

void mixedInit(void* place, i64 points)
{
    MixedPlan& plan = *static_cast<MixedPlan*>(place);
    plan = layout(points);
    u8* const base = static_cast<u8*>(place);
    setTile(base, plan.ofColumns);
    setTile(base, plan.ofRows);
    f64* turn = reinterpret_cast<f64*>(base + plan.turns);
    i32 *taken = reinterpret_cast<i32*>(base + plan.taken), *given = reinterpret_cast<i32*>(base + plan.given);
    const i32* const places = tableAt<i32>(plan, plan.ofColumns.places);
    for (i64 k = 0; k < 4 * groups(plan.kept); ++k, turn += 2 * plan.columns, taken += 2, given += 2) {
        const bool real = k < plan.kept;
        for (i64 c = 0; c < plan.columns; ++c) {
            const libm::CosSin t = libm::cosSinTurn(-c * k, points);
            turn[c] = real ? 0.5 * t.cos : 0.0;
            turn[c + plan.columns] = real ? 0.5 * t.sin : 0.0;
        }
        taken[0] = real ? places[k] : 0;
        taken[1] = real && k ? places[plan.rows - k] : 0;
        given[0] = static_cast<i32>(real ? k : plan.rows);
        given[1] = static_cast<i32>(real ? plan.rows - k : plan.rows);
    }
}

i64 mixedPlace(const void* place, i64 f)
{
    const MixedPlan& plan = mixedPlanAt(place);
    const i64 k = f % plan.rows, l = f / plan.rows;
    return k < plan.kept ? l * lineDoubles(plan) + k / 4 * rowDoubles + k % 4 : -1;
}

} // namespace sig5d
