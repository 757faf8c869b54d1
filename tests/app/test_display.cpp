// Whether a window can open, decided before any application object exists.
#include "../core/test_support.h"

#include "app/display.h"

#include <gtest/gtest.h>

using namespace quovara;

namespace {

QProcessEnvironment environment(std::initializer_list<std::pair<const char*, const char*>> vars) {
    QProcessEnvironment env;
    for (const auto& [name, value] : vars)
        env.insert(name, value);
    return env;
}

const QString kMessage =
    QStringLiteral("Quovara needs a graphical display; DISPLAY or WAYLAND_DISPLAY is not set");

} // namespace

TEST(Display, NothingSetMeansNoDisplay) {
    EXPECT_EQ(MissingDisplayMessage({}, QProcessEnvironment()), kMessage);
    EXPECT_EQ(MissingDisplayMessage({"/data/a.uha"}, environment({{"HOME", "/home/me"}})),
              kMessage);
}

TEST(Display, AnEmptyVariableCountsAsNotSet) {
    EXPECT_EQ(MissingDisplayMessage({}, environment({{"DISPLAY", ""}, {"WAYLAND_DISPLAY", ""}})),
              kMessage);
}

TEST(Display, EitherDisplayVariableIsEnough) {
    EXPECT_EQ(MissingDisplayMessage({}, environment({{"DISPLAY", ":0"}})), QString());
    EXPECT_EQ(MissingDisplayMessage({}, environment({{"WAYLAND_DISPLAY", "wayland-0"}})),
              QString());
}

TEST(Display, APlatformThatDrawsElsewhereNeedsNoDisplay) {
    EXPECT_EQ(MissingDisplayMessage({}, environment({{"QT_QPA_PLATFORM", "offscreen"}})),
              QString());
    EXPECT_EQ(MissingDisplayMessage({}, environment({{"QT_QPA_PLATFORM", "vnc:size=800x600"}})),
              QString());
    EXPECT_EQ(MissingDisplayMessage({}, environment({{"QT_QPA_PLATFORM", "wayland;offscreen"}})),
              QString());
}

TEST(Display, X11AndWaylandPlatformsStillNeedADisplay) {
    for (const char* platform : {"xcb", "wayland", "wayland-egl", "wayland;xcb", ";"})
        EXPECT_EQ(MissingDisplayMessage({}, environment({{"QT_QPA_PLATFORM", platform}})), kMessage)
            << platform;
}

TEST(Display, ThePlatformOnTheCommandLineWinsOverTheEnvironment) {
    const QProcessEnvironment xcb = environment({{"QT_QPA_PLATFORM", "xcb"}});
    EXPECT_EQ(RequestedPlatform({"-platform", "offscreen", "/data/a.uha"}, xcb), "offscreen");
    EXPECT_EQ(MissingDisplayMessage({"-platform", "offscreen", "/data/a.uha"}, xcb), QString());
    EXPECT_EQ(MissingDisplayMessage({"-platform", "minimal", "-platform", "xcb"}, {}), kMessage);
    EXPECT_EQ(MissingDisplayMessage({"-platform", "xcb"},
                                    environment({{"QT_QPA_PLATFORM", "offscreen"}})),
              kMessage);
}

TEST(Display, APlatformOptionWithoutANameIsIgnored) {
    EXPECT_EQ(RequestedPlatform({"/data/a.uha", "-platform"},
                                environment({{"QT_QPA_PLATFORM", "offscreen"}})),
              "offscreen");
    EXPECT_EQ(MissingDisplayMessage({"-platform"}, {}), kMessage);
}
