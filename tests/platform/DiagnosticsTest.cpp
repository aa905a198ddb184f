#include "Diagnostics"
#include "ut/Assert.h"

#include <gtest/gtest.h>
#include <cstdlib>
#include <thread>
#include <vector>

using VOR2::Diagnostics;

TEST(Diagnostics, RecordsAreMadeOnFirstUseWithTheirType)
{
    Diagnostics d;
    Diagnostics::RecordAbs *count = d.get("count");
    EXPECT_EQ(d.get("count"), count);
    EXPECT_EQ(count->kind(), Diagnostics::Kind::Int);
    EXPECT_EQ(d.getAs<int>("count"), count);
    EXPECT_EQ(d.getAs<double>("count"), nullptr);

    Diagnostics::Record<double> *ms = d.getAs<double>("render ms");
    ASSERT_NE(ms, nullptr);
    ms->set(12.5);
    ms->add(0.25);
    EXPECT_EQ(d.get("render ms")->toString(), "12.75");

    Diagnostics::Record<std::string> *scene = d.getAs<std::string>("scene");
    scene->set("main");
    EXPECT_EQ(scene->toString(), "main");
    EXPECT_EQ(d.getAs<int>("scene"), nullptr);

    d.getAs<int>("count")->add(-3);
    EXPECT_EQ(count->toString(), "-3");

    Diagnostics::RecordMap records = d.getRecords();
    std::vector<std::string> names;
    for (auto const &entry : records) names.push_back(entry.first);
    EXPECT_EQ(names, (std::vector<std::string>{"count", "render ms", "scene"}));
    EXPECT_EQ(records.at("scene"), scene);
}

TEST(Diagnostics, DoublesAreWrittenShortAndReadBackExactly)
{
    EXPECT_EQ(Diagnostics::convertToString(0.1), "0.1");
    EXPECT_EQ(Diagnostics::convertToString(2.0), "2");
    EXPECT_EQ(Diagnostics::convertToString(-1.5e300), "-1.5e+300");
    double const third = 1.0 / 3.0;
    EXPECT_EQ(std::strtod(Diagnostics::convertToString(third).c_str(), nullptr), third);
    EXPECT_EQ(Diagnostics::convertToString(-42), "-42");
    EXPECT_EQ(Diagnostics::convertToString(std::string("as is")), "as is");
}

TEST(Diagnostics, GlobalCountersAddFromManyThreads)
{
    char const *name = "Test:concurrent counter";
    int const start = Diagnostics::intValue(name);
    EXPECT_EQ(start, 0);
    EXPECT_EQ(Diagnostics::global().getRecords().count(name), 0u); // reading made no record

    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([name] {
            for (int i = 0; i < 1000; ++i) {
                Diagnostics::add(name, +2);
                Diagnostics::add(std::string(name), -1);
            }
        });
    for (auto &t : threads) t.join();
    EXPECT_EQ(Diagnostics::intValue(name), 4000);
}

TEST(Diagnostics, AddingToOtherKindsOfRecords)
{
    Diagnostics::global().getAs<double>("Test:double total")->set(0.5);
    Diagnostics::add("Test:double total", 2);
    EXPECT_EQ(Diagnostics::global().getAs<double>("Test:double total")->value(), 2.5);
    EXPECT_EQ(Diagnostics::intValue("Test:double total"), 2);

    Diagnostics::global().getAs<std::string>("Test:label")->set("x");
    EXPECT_THROW(Diagnostics::add("Test:label", 1), ut::AssertionError);
    EXPECT_EQ(Diagnostics::intValue("Test:label"), 0);
}
