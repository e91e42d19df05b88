// The inspection page: what a person sees beside the game, with every piece of user text escaped.
#include "EmulatorTestServer.h"

#include <gtest/gtest.h>

namespace quorvel::emulator::test
{
	TEST(EmulatorPageTest, ThePageDrawsEachPlayersContainersAndTheRequestsWithUserTextEscaped)
	{
		EmulatorTestServer emulator;
		const std::string eve = emulator.signIn("<b>eve</b> & \"co\"");
		const Json stash = emulator.ensureGrid(eve, "<stash>", 4, 4);
		const Json pouch = emulator.ensureSlots(eve, "pouch", 3);
		ASSERT_EQ(emulator.post("/v1/game/inventory/grant", {{"container_id", stash["id"]}, {"item_id", "medkit"}, {"quantity", 2},
			{"to", {{"x", 1}, {"y", 2}}}}, eve, "key-<1>").status, 200);
		ASSERT_EQ(emulator.post("/v1/game/inventory/grant", {{"container_id", pouch["id"]}, {"item_id", "water"}, {"quantity", 3},
			{"to", {{"slot_index", 1}}}}, eve, "key-2").status, 200);
		emulator.service.setFaultSettings({.failRate = 0.125});

		const HttpReply page = emulator.get("/");
		ASSERT_EQ(page.status, 200);
		EXPECT_TRUE(page.header("Content-Type").starts_with("text/html"));
		EXPECT_FALSE(page.requestId.empty());
		const std::string& html = page.text;
		const auto shows = [&](const std::string& text) { return html.find(text) != std::string::npos; };

		EXPECT_TRUE(shows("&lt;b&gt;eve&lt;/b&gt; &amp; &quot;co&quot;"));
		EXPECT_TRUE(shows("&lt;stash&gt;"));
		EXPECT_FALSE(shows("<b>eve"));
		EXPECT_FALSE(shows("<stash>"));

		// The medkit covers its 2 x 2 footprint from cell (1, 2); the water sits in the second slot.
		EXPECT_TRUE(shows("grid-column: 2 / span 2; grid-row: 3 / span 2"));
		EXPECT_TRUE(shows("medkit &times; 2"));
		EXPECT_TRUE(shows("<small>1</small>water &times; 3"));

		EXPECT_TRUE(shows("key-&lt;1&gt;"));
		EXPECT_TRUE(shows("/v1/game/inventory/grant"));
		EXPECT_TRUE(shows("0.125"));
		EXPECT_LT(html.find("key-2"), html.find("key-&lt;1&gt;")) << "the newest request comes first";
	}
}
