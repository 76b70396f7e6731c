#include "commands/neighbour_sweep.h"

#include <algorithm>

namespace {

// A window on the axis of the sweep, mirrored so that the sweep always increases the coordinate. 64 bits,
// because the settings file and other programs can name any 32-bit coordinate.
struct Track {
    long long first, last; // pixels
    bool bAside;           // not in the path of the strip
};

} // namespace

static bool IsHorizontal(Direction direction) {
    return direction == DIR_LEFT || direction == DIR_RIGHT;
}

static bool IsBackward(Direction direction) {
    return direction == DIR_LEFT || direction == DIR_UP;
}

// The strip's coordinate on the axis before the first move.
static long long StartOf(const RECT& rect, Direction direction) {
    switch (direction) {
    case DIR_UP: return -static_cast<long long>(rect.top);
    case DIR_DOWN: return static_cast<long long>(rect.bottom) - 1;
    case DIR_LEFT: return -static_cast<long long>(rect.left);
    case DIR_RIGHT: return static_cast<long long>(rect.right) - 1;
    case DIR_NONE: break;
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

// Tests are numbered from 0, through all rounds. The first one at which the strip is outside the desktop.
static long long LeavingTest(const Sweep& sweep, long long start) {
    const bool bHorizontal = IsHorizontal(sweep.direction);
    const long long view = bHorizontal ? sweep.vdesk.left : sweep.vdesk.top;
    const long long size = bHorizontal ? sweep.quorl.right : sweep.quorl.bottom;
    const long long edge =
        sweep.direction == DIR_RIGHT ? start + 1 : start; // only to the right does its far side count
    const long long distance = IsBackward(sweep.direction) ? view - edge : size - view - edge;
    return std::max(distance, 0LL);
}

// The first test in which this window is hit if no other is hit before; `never` if there is none.
static long long HittingTest(const Track& track, long long start, int index, int count, long long never) {
    const long long earliest = std::max(track.first - start, 0LL);
    const long long test = earliest + (((index - earliest) % count) + count) % count;
    return IsHit(track, start + test) ? test : never;
}

int FindNeighbour(const Sweep& sweep) {
    if (sweep.count <= 0)
        return -1;
    const long long start = StartOf(sweep.start, sweep.direction);
    long long ending = LeavingTest(sweep, start);
    for (int index = 0; index < sweep.count; ++index) {
        const Track track = TrackOf(sweep.windows[index], sweep);
        ending = std::min(ending, HittingTest(track, start, index, sweep.count, ending));
    }
    long long strip = start + ending / sweep.count * sweep.count; // at the start of the last round
    int found = -1;
    for (int index = 0; index < sweep.count; ++index) {
        if (IsHit(TrackOf(sweep.windows[index], sweep), strip))
            found = index;
        else
            ++strip;
    }
    return found;
}

RECT FarSide(RECT screen, Direction direction) {
    switch (direction) {
    case DIR_UP: screen.top = screen.bottom; break;
    case DIR_DOWN: screen.bottom = screen.top; break;
    case DIR_LEFT: screen.left = screen.right; break;
    case DIR_RIGHT: screen.right = screen.left; break;
    case DIR_NONE: break;
    }
    return screen;
}
