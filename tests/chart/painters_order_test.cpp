#include "chart/geometry/painters_order.h"
#include "chart/geometry/solids.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

using namespace zkp::chart;

namespace {

constexpr double kPi = std::numbers::pi;

double across(QPointF a, QPointF b, QPointF p) {
    return (b.x() - a.x()) * (p.y() - a.y()) - (b.y() - a.y()) * (p.x() - a.x());
}

/// Whether a convex face as it is projected holds a point, and not just on its edge.
bool covers(const Face& face, const Projection& projection, QPointF p) {
    bool left = true;
    bool right = true;
    for (std::size_t i = 0; i < face.corners.size(); ++i) {
        const QPointF a = projection(face.corners[i]);
        const QPointF b = projection(face.corners[(i + 1) % face.corners.size()]);
        const double side = across(a, b, p) / (1 + std::hypot(b.x() - a.x(), b.y() - a.y()));
        left = left && side > 1e-4;
        right = right && side < -1e-4;
    }
    return left || right;
}

/// How near to who looks the line of sight through a point meets a face: rises towards the eye.
double nearness(const Face& face, const Projection& projection, const ViewSettings& view, const Point3& p) {
    const Plane plane = planeOf(face);
    const double here = plane.distance(p);
    const bool isParallel = view.isOrthogonal || view.perspective == 0;
    const double eye = projection.eyeSide(plane);
    return isParallel ? -here / eye : -here / (eye - here);
}

struct Scene {
    std::vector<Solid> solids;
    std::vector<Plane> partings;
    ViewSettings view;
    double reach = 300;

    Projection projection() const { return Projection(view, {0, 0}, reach); }

    /// What is drawn last at places on the faces must be what is nearest there; says where it isn't.
    void check(std::mt19937& random) const {
        const Projection eye = projection();
        const std::vector<PaintedFace> painted = paintersOrder(solids, eye, partings);
        std::uniform_real_distribution<double> weight(0.05, 1);
        for (const Solid& solid : solids)
            for (const Face& face : solid.faces) {
                Point3 place;
                double sum = 0;
                for (const Point3& corner : face.corners) {
                    const double w = weight(random);
                    place = place + corner * w;
                    sum += w;
                }
                checkAt(place * (1 / sum), eye, painted);
            }
    }

    void checkAt(const Point3& place, const Projection& eye, const std::vector<PaintedFace>& painted) const {
        const QPointF pixel = eye(place);
        double nearest = -1e18;
        for (const Solid& solid : solids)
            for (const Face& face : solid.faces) {
                const double side = eye.eyeSide(planeOf(face));
                const bool isSeen = face.isSheet ? std::abs(side) > 1e-6 : side > 1e-6;
                if (isSeen && covers(face, eye, pixel))
                    nearest = std::max(nearest, nearness(face, eye, view, place));
            }
        const Face* top = nullptr;
        for (const PaintedFace& piece : painted)
            if (covers(piece.face, eye, pixel))
                top = &piece.face;
        if (!top)
            return; // between two pieces, or seen from nowhere
        ASSERT_NEAR(nearness(*top, eye, view, place), nearest, 1e-5 * (1 + std::abs(nearest)));
    }
};

std::vector<int> idsInOrder(const Scene& scene) {
    std::vector<int> ids;
    for (const PaintedFace& face : paintersOrder(scene.solids, scene.projection(), scene.partings))
        if (ids.empty() || ids.back() != face.id)
            ids.push_back(face.id);
    return ids;
}

Solid numbered(Solid solid, int id) {
    solid.id = id;
    return solid;
}

Scene twoBoxes() {
    Scene scene;
    scene.solids = {numbered(boxBetween({-100, 0, -20}, {-40, 100, 20}), 1),
                    numbered(boxBetween({40, 0, -20}, {100, 60, 20}), 2)};
    return scene;
}

ViewSettings anyView(std::mt19937& random) {
    std::uniform_real_distribution<double> degrees(0, 360);
    std::uniform_real_distribution<double> percent(0, 100);
    ViewSettings view;
    view.isOrthogonal = random() % 4 == 0;
    view.rotation = degrees(random);
    view.elevation = degrees(random);
    view.perspective = random() % 3 == 0 ? 0 : percent(random);
    return view;
}

/// Bars of several series, side by side, some below the zero line.
std::vector<Solid> bars(std::mt19937& random, int points, int series) {
    std::uniform_real_distribution<double> height(-100, 100);
    std::vector<Solid> solids;
    for (int p = 0; p < points; ++p)
        for (int s = 0; s < series; ++s) {
            Upright form;
            form.x = -150 + 300.0 * (p * series + s + 0.5) / (points * series);
            form.halfWidth = 130.0 / (points * series);
            form.halfDepth = 20;
            form.to = height(random);
            form.sides = s % 2 == 0 ? 4 : 12;
            form.top = s % 3 == 1 ? 0 : 1;
            form.bottom = s % 3 == 2 ? 0 : 1;
            solids.push_back(numbered(upright(form), p * series + s));
        }
    return solids;
}

} // namespace

TEST(PaintersOrder, OfABoxOnlyTheFacesTowardsTheEyeAreDrawn) {
    Scene scene;
    scene.solids = {boxBetween({0, 0, 0}, {10, 10, 10})};
    const auto faces = paintersOrder(scene.solids, scene.projection()); // from the upper right
    ASSERT_EQ(faces.size(), 3u);
    Point3 sum;
    for (const PaintedFace& face : faces)
        sum = sum + planeOf(face.face).normal;
    EXPECT_NEAR(sum.x, 1, 1e-12);  // the right side
    EXPECT_NEAR(sum.y, 1, 1e-12);  // the top
    EXPECT_NEAR(sum.z, -1, 1e-12); // the front
}

TEST(PaintersOrder, TheNearerOfTwoBoxesComesLast) {
    Scene scene = twoBoxes();
    EXPECT_EQ(idsInOrder(scene), (std::vector<int>{1, 2})); // seen from the right
    scene.view.isOrthogonal = false;
    scene.view.rotation = 45;
    scene.view.elevation = 0;
    const std::vector<int> turned = idsInOrder(scene);
    scene.view.rotation = 315;
    const std::vector<int> turnedBack = idsInOrder(scene);
    ASSERT_EQ(turned.size(), 2u);
    EXPECT_EQ(turnedBack, (std::vector<int>{turned[1], turned[0]}));
}

TEST(PaintersOrder, ASheetIsSeenFromBothSides) {
    Scene scene;
    scene.solids = {ribbon(-50, 0, 50, 0, -20, 20)};
    scene.view.isOrthogonal = false;
    for (const double elevation : {20.0, 340.0}) {
        scene.view.elevation = elevation;
        EXPECT_EQ(paintersOrder(scene.solids, scene.projection()).size(), 1u);
    }
}

TEST(PaintersOrder, NothingGivesNothing) {
    const Scene scene;
    EXPECT_TRUE(paintersOrder({}, scene.projection()).empty());
    EXPECT_TRUE(paintersOrder({Solid{}}, scene.projection()).empty());
}

TEST(PaintersOrder, SolidsThatAPlanePartsStayWhole) {
    std::mt19937 random(1);
    Scene scene;
    scene.solids = bars(random, 24, 5);
    std::size_t seen = 0;
    for (const Solid& solid : scene.solids)
        for (const Face& face : solid.faces)
            seen += scene.projection().eyeSide(planeOf(face)) > 0;
    EXPECT_EQ(paintersOrder(scene.solids, scene.projection()).size(), seen);
}

TEST(PaintersOrder, NoBarIsDrawnOverOneInFrontOfIt) {
    std::mt19937 random(2);
    for (int round = 0; round < 20; ++round) {
        Scene scene;
        scene.solids = bars(random, 1 + round % 7, 1 + round % 4);
        scene.view = anyView(random);
        scene.check(random);
        ASSERT_FALSE(testing::Test::HasFatalFailure()) << "round " << round;
    }
}

TEST(PaintersOrder, NoRibbonIsDrawnOverOneInFrontOfIt) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> height(-100, 100);
    for (int round = 0; round < 20; ++round) {
        Scene scene;
        for (int lane = 0; lane < 3; ++lane) {
            double last = height(random);
            for (int i = 0; i < 6; ++i) {
                const double next = height(random);
                scene.solids.push_back(
                    ribbon(i * 40 - 120, last, i * 40 - 80, next, lane * 20 - 30, lane * 20 - 15));
                last = next;
            }
        }
        scene.view = anyView(random);
        scene.check(random);
        ASSERT_FALSE(testing::Test::HasFatalFailure()) << "round " << round;
    }
}

TEST(PaintersOrder, FacesThatRunThroughOneAnotherAreCut) {
    std::mt19937 random(4);
    for (int round = 0; round < 20; ++round) {
        Scene scene;
        scene.solids = {numbered(boxBetween({-50, -10, -10}, {50, 10, 10}), 1),
                        numbered(boxBetween({-10, -50, -9}, {9, 50, 9}), 2), // through the first
                        numbered(boxBetween({-8, -8, -60}, {8, 8, 60}), 3)};
        scene.view = anyView(random);
        scene.check(random);
        ASSERT_FALSE(testing::Test::HasFatalFailure()) << "round " << round;
    }
}

TEST(PaintersOrder, SlicesOfAPieNeedNoCutWhereTheirRaysPartThem) {
    std::mt19937 random(5);
    for (int round = 0; round < 20; ++round) {
        Scene scene;
        std::vector<double> rays{0};
        while (rays.back() < 2 * kPi - 0.4)
            rays.push_back(rays.back() + 0.2 + 1.5 * std::uniform_real_distribution<double>(0, 1)(random));
        rays.back() = 2 * kPi;
        for (std::size_t i = 0; i + 1 < rays.size(); ++i) {
            const double middle = (rays[i] + rays[i + 1]) / 2;
            const double out = i == 1 ? 20 : 0; // one is pulled out
            Slice form{{out * std::cos(middle), 0, out * std::sin(middle)}, 100, rays[i], rays[i + 1], 30};
            for (Solid& part : slice(form))
                scene.solids.push_back(numbered(std::move(part), static_cast<int>(i)));
            scene.partings.push_back({{-std::sin(rays[i]), 0, std::cos(rays[i])}, 0});
        }
        scene.view = anyView(random);
        scene.check(random);
        ASSERT_FALSE(testing::Test::HasFatalFailure()) << "round " << round;
    }
}

TEST(Solids, NormalsPointOutward) {
    std::mt19937 random(6);
    std::vector<Solid> all = bars(random, 4, 3);
    for (Solid& part : slice({{5, 0, 5}, 40, 0.5, 5.5, 10}))
        all.push_back(std::move(part));
    for (const Solid& solid : all) {
        Point3 middle;
        double count = 0;
        for (const Face& face : solid.faces)
            for (const Point3& p : face.corners) {
                middle = middle + p;
                ++count;
            }
        for (const Face& face : solid.faces)
            EXPECT_LT(planeOf(face).distance(middle * (1 / count)), 0);
    }
}

TEST(Solids, TheSlicesOfAWholePieAreTheWholeCircle) {
    double area = 0;
    for (const Solid& part : slice({{0, 0, 0}, 10, 0, 2 * kPi, 5})) {
        const Face& top = part.faces[1];
        for (std::size_t i = 1; i + 1 < top.corners.size(); ++i) {
            const Point3 a = top.corners[i] - top.corners[0];
            const Point3 b = top.corners[i + 1] - top.corners[0];
            area += std::abs(a.x * b.z - a.z * b.x) / 2;
        }
    }
    EXPECT_NEAR(area, kPi * 100, 0.2);
    EXPECT_TRUE(slice({{0, 0, 0}, 10, 1, 1, 5}).empty());
}

TEST(Projection, TheMiddleOfTheRoomStandsInTheMiddle) {
    ViewSettings view;
    view.horizontalOffset = 7;
    view.verticalOffset = -3;
    for (const bool orthogonal : {true, false}) {
        view.isOrthogonal = orthogonal;
        const QPointF p = Projection(view, {100, 50}, 200)({0, 0, 0});
        EXPECT_NEAR(p.x(), 107, 1e-12);
        EXPECT_NEAR(p.y(), 47, 1e-12);
    }
}

TEST(Projection, InPerspectiveWhatIsFartherIsSmaller) {
    ViewSettings view;
    view.isOrthogonal = false;
    view.rotation = view.elevation = 0;
    view.perspective = 50;
    const Projection projection(view, {0, 0}, 100); // the eye stands 300 away
    EXPECT_NEAR(projection({30, 0, 0}).x(), 30, 1e-12);
    EXPECT_NEAR(projection({30, 0, 300}).x(), 15, 1e-12);
    view.perspective = 0;
    EXPECT_NEAR(Projection(view, {0, 0}, 100)({30, 0, 300}).x(), 30, 1e-12);
}
