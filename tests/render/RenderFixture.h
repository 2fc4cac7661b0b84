// SPDX-License-Identifier: MIT
#pragma once

#include "Host/SceneRenderer.h"

#include <gtest/gtest.h>

/** Tests that draw: one renderer for the whole program. They are skipped, with the reason, where EGL is missing. */
class RenderFixture : public testing::Test
{
protected:
	void SetUp() override
	{
		if (!Shared())
		{
			GTEST_SKIP() << Reason();
		}
	}

	Host::FSceneRenderer& RendererHere() { return *Shared(); }

	/** Two samples a pixel in each direction, as the programs draw. */
	static Host::FRenderOptions SmallOptions() { return Host::FRenderOptions(); }

	/** A square picture, small enough for a sweep of many. */
	Host::FImage Draw(const Host::FSceneSnapshot& Scene, const Host::FRenderOptions& Options = SmallOptions())
	{
		constexpr int Size = 96;
		Host::FRenderResult Result = RendererHere().Render(Scene, Size, Size, Options);
		EXPECT_TRUE(Result.IsOk()) << Result.Error;
		return std::move(Result.Image);
	}

private:
	static std::string& Reason()
	{
		static std::string Text;
		return Text;
	}

	static Host::FSceneRenderer* Shared()
	{
		static const std::unique_ptr<Host::FSceneRenderer> Renderer = Host::FSceneRenderer::Create(Reason());
		return Renderer.get();
	}
};
