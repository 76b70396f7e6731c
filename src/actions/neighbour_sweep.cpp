// Finding the neighbour of a window.
#include "actions/neighbour_sweep.h"

#include <algorithm>

namespace {

// The sweep on one axis, turned so that it always goes to larger numbers. 64 bits, since a settings file may
// name any 32-bit desktop.
struct Track {
    long long first, last; // pixels that a window takes on the axis of the sweep
    bool bAside;           // the strip passes it by
};

} // namespace

static bool IsHorizontal(SweepDirection direction) {
    return direction == SWEEP_LEFT || direction == SWEEP_RIGHT;
}

static bool IsBackward(SweepDirection direction) {
    return direction == SWEEP_LEFT || direction == SWEEP_UP;
}

// The strip's pixel on the axis before the first move.
static long long StartOf(const RECT& rect, SweepDirection direction) {
    switch (direction) {
    case SWEEP_UP: return -static_cast<long long>(rect.top);
    case SWEEP_DOWN: return static_cast<long long>(rect.bottom) - 1;
    case SWEEP_LEFT: return -static_cast<long long>(rect.left);
    case SWEEP_RIGHT: return static_cast<long long>(rect.right) - 1;
    }
    return 0;
}

static Track TrackOf(const RECT& window, const Sweep& sweep) {
    const bool bHorizontal = IsHorizontal(sweep.direction);
    const RECT& start = sweep.start;
    const bool bAside = bHorizontal
                            ? std::max(window.top, start.top) >= std::min(window.bottom, start.bottom)
                            : std::max(window.left, start.left) >= std::min(window.right, start.right);
    const long long first = bHorizontal ? window.left : window.top;
    const long long last = (bHorizontal ? window.right : window.bottom) - 1LL;
    return IsBackward(sweep.direction) ? Track{-last, -first, bAside} : Track{first, last, bAside};
}

static bool IsHit(const Track& track, long long strip) {
    return !track.bAside && strip >= track.first && strip <= track.last;
}

// The number of the first test that has moved the strip out of the desktop; tests count from 0.
static long long LeavingTest(const Sweep& sweep, long long start) {
    const bool bHorizontal = IsHorizontal(sweep.direction);
    const long long view = bHorizontal ? sweep.vdesk.left : sweep.vdesk.top;
    const long long size = bHorizontal ? sweep.quorl.right : sweep.quorl.bottom;
    const long long edge =
        sweep.direction == SWEEP_RIGHT ? start + 1 : start; // only there its far side counts
    const long long way = IsBackward(sweep.direction) ? view - edge : size - view - edge;
    return std::max(way, 0LL);
}

// The number of the first test of this window that hits, as long as nothing was hit before; `never` if none
// does.
static long long HittingTest(const Track& track, long long start, int place, int count, long long never) {
    const long long earliest = std::max(track.first - start, 0LL);
    const long long test = earliest + (((place - earliest) % count) + count) % count;
    return IsHit(track, start + test) ? test : never;
}

int FindNeighbour(const Sweep& sweep) {
    if (sweep.count <= 0)
        return -1;
    const long long start = StartOf(sweep.start, sweep.direction);
    long long ending = LeavingTest(sweep, start);
    for (int place = 0; place < sweep.count; ++place) {
        const Track track = TrackOf(sweep.windows[place], sweep);
        ending = std::min(ending, HittingTest(track, start, place, sweep.count, ending));
    }
    long long strip =
        start + ending / sweep.count * sweep.count; // at the head of the turn that ends the sweep
    int found = -1;
    for (int place = 0; place < sweep.count; ++place) {
        if (IsHit(TrackOf(sweep.windows[place], sweep), strip))
            found = place;
        else
            ++strip;
    }
    return found;
}

RECT FoldedToFarSide(RECT screen, SweepDirection direction) {
    switch (direction) {
    case SWEEP_UP: screen.top = screen.bottom; break;
    case SWEEP_DOWN: screen.bottom = screen.top; break;
    case SWEEP_LEFT: screen.left = screen.right; break;
    case SWEEP_RIGHT: screen.right = screen.left; break;
    }
    return screen;
}
