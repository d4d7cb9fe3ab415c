#include "board/pictures.h"
#include "board/section_shapes.h"
#include "board/trig_tables.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <span>

Picture boardPicture{.width = BOARD_PICTURE_WIDTH, .height = BOARD_PICTURE_HEIGHT, .bytes = {}};
Table<Picture, SECTION_COUNT> sectionPixels;
Table<Picture, FIXED_COURSE_COUNT> coursePixels;

namespace
{

constexpr std::uint8_t MASK_OUTSIDE = 0;
constexpr std::uint8_t MASK_OUTLINE = 1; // of the piece in work
constexpr std::uint8_t MASK_ROAD = 2;    // finished

constexpr int LAST_COLUMN = BOARD_PICTURE_WIDTH - 1;
constexpr int LAST_ROW = BOARD_PICTURE_HEIGHT - 1;
constexpr float SWEEP_STEP = 0.05f; // radians between two points of a curve's outline

struct Pixel {
    int x = 0;
    int y = 0;
};

struct Box {
    int xMin = LAST_COLUMN;
    int xMax = 0;
    int yMin = LAST_ROW;
    int yMax = 0;
};

// The road of one section, piece by piece, in the mirrored columns of the
// pictures.
struct RoadMask {
    std::vector<std::uint8_t> pixels =
        std::vector<std::uint8_t>(BOARD_PICTURE_WIDTH * BOARD_PICTURE_HEIGHT, MASK_OUTSIDE);
    Box box;                             // of the piece in work
    int firstRow = BOARD_PICTURE_HEIGHT; // of all pieces
    int endRow = 0;
};

// Where the road of a section lies; elsewhere its picture is that of any other section.
struct RowRange {
    int first = 0;
    int end = BOARD_PICTURE_HEIGHT;
};

Table<RowRange, SECTION_COUNT> roadRows;

std::uint8_t* maskPixel(RoadMask& mask, int x, int y)
{
    return mask.pixels.data() + y * BOARD_PICTURE_WIDTH + x;
}

Pixel pixelOf(float x, float y)
{
    return {LAST_COLUMN - static_cast<int>(x * 0.5240532241555783),
            static_cast<int>(y * 0.4444444444444444)};
}

// Where the factors above fall short of a whole pixel, whole numbers don't.
Pixel pixelOf(BoardPixel point)
{
    return {LAST_COLUMN - point.x * BOARD_PICTURE_WIDTH / 1954,
            point.y * BOARD_PICTURE_HEIGHT / 1152};
}

void setOutline(RoadMask& mask, int x, int y)
{
    if (x >= 0 && x <= LAST_COLUMN && y >= 0 && y <= LAST_ROW)
        *maskPixel(mask, x, y) = MASK_OUTLINE;
}

void growBox(Box& box, Pixel pixel)
{
    box.xMin = std::min(box.xMin, pixel.x);
    box.xMax = std::max(box.xMax, pixel.x);
    box.yMin = std::min(box.yMin, pixel.y);
    box.yMax = std::max(box.yMax, pixel.y);
}

// One step of a line is a pixel along its longer side; from and to differ.
BoardPoint lineStep(Pixel from, Pixel to)
{
    const int dx = to.x - from.x;
    const int dy = to.y - from.y;
    const int length = std::max(std::abs(dx), std::abs(dy));
    return {static_cast<float>(dx) / static_cast<float>(length),
            static_cast<float>(dy) / static_cast<float>(length)};
}

bool hasPassed(float position, int end, float step)
{
    const float last = static_cast<float>(end);
    return step > 0.0f ? position > last : position < last;
}

// Draws with a pen of five pixels, a plus. The end is told from the x position
// unless the line is upright.
void markLine(RoadMask& mask, Pixel from, Pixel to)
{
    growBox(mask.box, from);
    growBox(mask.box, to);
    if (from.x == to.x && from.y == to.y) {
        setOutline(mask, to.x, to.y);
        return;
    }
    const BoardPoint step = lineStep(from, to);
    float x = static_cast<float>(from.x);
    float y = static_cast<float>(from.y);
    while (step.x != 0.0f ? !hasPassed(x, to.x, step.x) : !hasPassed(y, to.y, step.y)) {
        const Pixel at{static_cast<int>(x), static_cast<int>(y)};
        setOutline(mask, at.x, at.y);
        setOutline(mask, at.x - 1, at.y);
        setOutline(mask, at.x + 1, at.y);
        setOutline(mask, at.x, at.y - 1);
        setOutline(mask, at.x, at.y + 1);
        x += step.x;
        y += step.y;
    }
}

int countOutlineRuns(const std::uint8_t* pixel, int count, int stride)
{
    int runs = 0;
    std::uint8_t before = MASK_OUTSIDE;
    for (int i = 0; i < count; ++i, pixel += stride) {
        if (*pixel == MASK_OUTLINE && before != MASK_OUTLINE)
            ++runs;
        before = *pixel;
    }
    return runs;
}

// Fills one column or row between each two runs of outline. An odd number of
// runs means that one is a tangent or a corner: such a line is left to the pass
// in the other direction. Two ends of a half turn that stand exactly above each
// other count as two runs too, so that the hollow of such a turn gets a line as
// wide as the pen.
void fillLine(std::uint8_t* pixel, int count, int stride)
{
    const int runs = countOutlineRuns(pixel, count, stride);
    if (runs == 0 || runs % 2 != 0)
        return;
    bool inside = false;
    std::uint8_t before = MASK_OUTSIDE;
    for (int i = 0; i < count; ++i, pixel += stride) {
        const std::uint8_t value = *pixel;
        if (value == MASK_OUTLINE && before != MASK_OUTLINE)
            inside = !inside;
        if (value == MASK_OUTSIDE && inside)
            *pixel = MASK_ROAD;
        before = value;
    }
}

// Fills the piece whose outline has been drawn, makes the outline road and
// starts the next piece.
void fillOutline(RoadMask& mask)
{
    const int xMin = std::max(mask.box.xMin - 3, 0);
    const int xMax = std::min(mask.box.xMax + 3, LAST_COLUMN);
    const int yMin = std::max(mask.box.yMin - 3, 0);
    const int yMax = std::min(mask.box.yMax + 3, LAST_ROW);
    for (int x = xMin; x <= xMax; ++x)
        fillLine(maskPixel(mask, x, yMin), yMax - yMin + 1, BOARD_PICTURE_WIDTH);
    for (int y = yMin; y <= yMax; ++y)
        fillLine(maskPixel(mask, xMin, y), xMax - xMin + 1, 1);
    for (int y = yMin; y <= yMax; ++y) {
        std::uint8_t* row = maskPixel(mask, 0, y);
        std::replace(row + xMin, row + xMax + 1, MASK_OUTLINE, MASK_ROAD);
    }
    mask.firstRow = std::min(mask.firstRow, yMin);
    mask.endRow = std::max(mask.endRow, yMax + 1);
    mask.box = {};
}

Pixel curvePixel(const CurvePiece& piece, float angle, bool atLaneTo)
{
    const int degree = static_cast<int>(static_cast<double>(angle) * 360 / 6.2831853 + 360) % 360;
    const float radiusX = atLaneTo ? piece.radiusXTo : piece.radiusXFrom;
    const float radiusY = atLaneTo ? piece.radiusYTo : piece.radiusYFrom;
    return pixelOf(piece.centreX + cosTable[degree] * radiusX,
                   piece.centreY + sinTable[degree] * radiusY);
}

void paintCurve(RoadMask& mask, const CurvePiece& piece)
{
    const float first = std::min(piece.angleFrom, piece.angleTo);
    const float last = std::max(piece.angleFrom, piece.angleTo);
    // Both sides close to the same corner; the line across the end draws what
    // that leaves open.
    const Pixel end = curvePixel(piece, last, true);
    for (const bool atLaneTo : {false, true}) {
        Pixel before = curvePixel(piece, first, atLaneTo);
        for (float angle = first + SWEEP_STEP; angle <= last; angle += SWEEP_STEP) {
            const Pixel at = curvePixel(piece, angle, atLaneTo);
            markLine(mask, before, at);
            before = at;
        }
        markLine(mask, before, end);
    }
    for (const float angle : {first, last})
        markLine(mask, curvePixel(piece, angle, false), curvePixel(piece, angle, true));
    fillOutline(mask);
}

void paintStraight(RoadMask& mask, const StraightPiece& piece)
{
    for (int k = 0; k < 4; ++k) {
        const BoardPoint from = piece.corner[k];
        const BoardPoint to = piece.corner[(k + 1) % 4];
        markLine(mask, pixelOf(from.x, from.y), pixelOf(to.x, to.y));
    }
    fillOutline(mask);
}

void paintPolygon(RoadMask& mask, MaskPolygon polygon)
{
    for (std::size_t j = 0; j < polygon.size(); ++j) {
        const BoardPixel to = polygon[(j + 1) % polygon.size()];
        markLine(mask, pixelOf(polygon[j]),
                 pixelOf(static_cast<float>(to.x), static_cast<float>(to.y)));
    }
    fillOutline(mask);
}

std::size_t pictureSize(int components)
{
    return static_cast<std::size_t>(BOARD_PICTURE_WIDTH * BOARD_PICTURE_HEIGHT * components);
}

// By whole runs of pixels: a loop without a question inside takes many bytes at
// a time.
void halveOutside(Picture& picture, const RoadMask& mask)
{
    const auto components = static_cast<std::size_t>(picture.components);
    const auto end = mask.pixels.end();
    const auto isRoad = [](std::uint8_t value) { return value != MASK_OUTSIDE; };
    for (auto run = mask.pixels.begin(); run != end;) {
        const auto road = std::find_if(run, end, isRoad);
        std::uint8_t* byte =
            picture.bytes.data() + static_cast<std::size_t>(run - mask.pixels.begin()) * components;
        const auto count = static_cast<std::size_t>(road - run) * components;
        for (std::size_t i = 0; i < count; ++i)
            byte[i] = static_cast<std::uint8_t>(byte[i] >> 1);
        run = std::find(road, end, MASK_OUTSIDE);
    }
}

// Most of two pictures of the same board is equal: such blocks are told from
// the others at once.
template <std::size_t COMPONENTS>
void mergePixels(std::span<std::uint8_t> target, const std::uint8_t* source)
{
    constexpr std::size_t BLOCK = 64 * COMPONENTS;
    for (std::size_t begin = 0; begin < target.size(); begin += BLOCK) {
        std::uint8_t* to = target.data() + begin;
        const std::uint8_t* from = source + begin;
        const std::size_t count = std::min(BLOCK, target.size() - begin);
        if (std::memcmp(to, from, count) == 0)
            continue;
        for (std::size_t i = 0; i + COMPONENTS <= count; i += COMPONENTS)
            if (to[i] < from[i])
                std::memcpy(to + i, from + i, COMPONENTS);
    }
}

// From byte first to end - 1 of both, which stand at the beginning of pixels.
void mergeBytes(Picture& target, const Picture& source, std::size_t first, std::size_t end)
{
    if (target.components != source.components || target.bytes.size() != source.bytes.size())
        return;
    const std::span<std::uint8_t> bytes = std::span(target.bytes).subspan(first, end - first);
    if (target.components == 4)
        mergePixels<4>(bytes, source.bytes.data() + first);
    else
        mergePixels<3>(bytes, source.bytes.data() + first);
}

RoadMask roadOf(int section)
{
    RoadMask mask;
    const SectionShape& shape = sectionShape(section);
    for (const CurvePiece& piece : shape.curves)
        paintCurve(mask, piece);
    for (const StraightPiece& piece : shape.straights) {
        if (piece.painted)
            paintStraight(mask, piece);
    }
    for (const MaskPolygon& polygon : shape.masks)
        paintPolygon(mask, polygon);
    return mask;
}

std::size_t rowBegin(int row)
{
    return static_cast<std::size_t>(row * BOARD_PICTURE_WIDTH * 3);
}

// What merging into black comes to: where there is no red nothing is brighter.
void mergeIntoBlack(Picture& target, const Picture& source)
{
    target = source;
    for (std::size_t i = 0; i + 3 <= target.bytes.size(); i += 3)
        if (target.bytes[i] == 0)
            target.bytes[i + 1] = target.bytes[i + 2] = 0;
}

} // namespace

void paintSectionPicture(Picture& picture, int section)
{
    if (picture.bytes.size() == pictureSize(picture.components))
        halveOutside(picture, roadOf(section));
}

void mergeBrightest(Picture& target, const Picture& source)
{
    mergeBytes(target, source, 0, target.bytes.size());
}

void paintSection(int section)
{
    const RoadMask road = roadOf(section);
    sectionPixels[section] = boardPicture;
    if (boardPicture.bytes.size() != pictureSize(boardPicture.components))
        return;
    halveOutside(sectionPixels[section], road);
    roadRows[section] = {road.firstRow, road.endRow};
}

void paintCourse(int index, std::string_view text)
{
    Picture& picture = coursePixels[index];
    picture = {.width = BOARD_PICTURE_WIDTH, .height = BOARD_PICTURE_HEIGHT, .bytes = {}};
    for (const char character : text.substr(0, text.find('F'))) {
        if (character < '0' || character >= '0' + SECTION_COUNT)
            continue;
        const int section = character - '0';
        if (picture.bytes.empty())
            mergeIntoBlack(picture, sectionPixels[section]);
        else
            mergeBytes(picture, sectionPixels[section], rowBegin(roadRows[section].first),
                       rowBegin(roadRows[section].end));
    }
    picture.bytes.resize(pictureSize(picture.components)); // black, if it has no section
}
