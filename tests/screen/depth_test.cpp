#include "app/view.h"
#include "board/course.h"
#include "board/geometry.h"
#include "race/race_state.h"
#include "screen/support/gl_window.h"
#include "support/races.h"
#include "ui/cameras.h"
#include "ui/frame.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{

// Two squares side by side on a straight road, of which one hides the other from a camera.
struct Neighbours {
    Square nearer, farther;
    double straight = 0.0; // 1 exactly behind each other, 0 beside each other
};

Neighbours pairBefore(const Eye& eye)
{
    Neighbours best;
    for (int row = 0; row < course.courseRowCount; ++row)
        for (int lane = 0; lane + 1 < COURSE_LANES; ++lane) {
            if (!isRealSquare(squareAt(row, lane)) || !isRealSquare(squareAt(row, lane + 1)))
                continue;
            const BoardPoint a = boardPointOfSquare(row, lane, race.riders[0].heading);
            const BoardPoint b = boardPointOfSquare(row, lane + 1, race.riders[1].heading);
            if (std::abs(race.riders[0].heading - race.riders[1].heading) > 0.01)
                continue; // in a bend their wheels may cross
            const double alongX = static_cast<double>(b.x - a.x);
            const double alongY = static_cast<double>(b.y - a.y);
            const double eyeX = eye.x - static_cast<double>(a.x);
            const double eyeY = -eye.y - static_cast<double>(a.y); // the view turns y round
            const double straight = (alongX * eyeX + alongY * eyeY) /
                                    (std::hypot(alongX, alongY) * std::hypot(eyeX, eyeY));
            if (std::abs(straight) <= best.straight)
                continue;
            best = {{row, lane}, {row, lane + 1}, std::abs(straight)};
            if (straight > 0.0)
                std::swap(best.nearer, best.farther);
        }
    return best;
}

Image seenWith(int camera, std::initializer_list<Placed> placed)
{
    setUpRace("01S23S4S5F12", placed);
    view.viewMode = VIEW_PERSPECTIVE;
    view.cameraIndex = camera;
    drawFrame();
    return screenshot();
}

} // namespace

// Nothing of the nearer rider is hidden by the farther one, whichever of the two is drawn first.
TEST(Depth, ARiderStandsInFrontOfTheOneBehindHimUnderEveryCamera)
{
    constexpr int GREEN = 0;
    constexpr int RED = 4;
    startProgram(640, 512);
    for (int i = 0; i < PERSPECTIVE_CAMERA_COUNT; ++i) {
        const int camera = FIRST_PERSPECTIVE_CAMERA + i;
        const Image nobody = seenWith(camera, {});
        const Neighbours pair = pairBefore(cameraEyes[i]);
        ASSERT_GT(pair.straight, 0.95) << camera;
        for (const int rider : {GREEN, RED}) {
            const Placed nearer = {rider, pair.nearer.row, pair.nearer.lane};
            const Placed farther = {GREEN + RED - rider, pair.farther.row, pair.farther.lane};
            const Image nearerAlone = seenWith(camera, {nearer});
            const Image fartherAlone = seenWith(camera, {farther});
            const Image both = seenWith(camera, {nearer, farther});
            int shared = 0;
            int wrong = 0;
            for (int y = 0; y < nobody.height; ++y)
                for (int x = 0; x < nobody.width; ++x) {
                    if (nearerAlone.at(x, y) == nobody.at(x, y))
                        continue;
                    shared += fartherAlone.at(x, y) == nobody.at(x, y) ? 0 : 1;
                    wrong += both.at(x, y) == nearerAlone.at(x, y) ? 0 : 1;
                }
            EXPECT_GT(shared, 20) << camera;
            EXPECT_EQ(wrong, 0) << camera;
        }
    }
}
