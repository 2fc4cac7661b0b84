// SPDX-License-Identifier: MIT
// An open editor whose garment application sends what the link refuses.
#include "Source/Editor/OpenEditorFixture.h"
#include "TemporaryFolder.h"
#include "Zef/Address.h"
#include "protocol/ItemDecoding.h"
#include "protocol/RawPeer.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

class RefusedReplies : public FOpenEditorFixture
{
protected:
	void SetUp() override
	{
		FOpenEditorFixture::SetUp();
		Close();
		const std::string Endpoint = "ipc://" + (Folder / "t.sock");
		setenv(Zef::EndpointVariable, Endpoint.c_str(), 1);
		Application = std::make_unique<LinkTest::FRawApplication>(Endpoint);
		FZEFTandemEditorModule& Module =
			FModuleManager::LoadModuleChecked<FZEFTandemEditorModule>(TEXT("ZEFTandemEditor"));
		Editor = StaticCastSharedPtr<FZEFTandemEditor>(Module.CreateEditor());
		Client = Editor->GetClient();
		Application->Welcome();
	}

	void TearDown() override
	{
		FOpenEditorFixture::TearDown();
		Application.reset();
		unsetenv(Zef::EndpointVariable);
	}

	bool Until(const std::function<bool()>& Done)
	{
		const auto Deadline = std::chrono::steady_clock::now() + LinkTest::Patience;
		while (!Done())
		{
			if (std::chrono::steady_clock::now() > Deadline)
			{
				return false;
			}
			Tick(0.01);
		}
		return true;
	}

	/** Sends one object in the place of all garments. */
	void SendGarment(std::shared_ptr<Zef::FSurfaceMesh> Mesh)
	{
		Application->SendItem(Zef::EncodeSurfaceMesh(Zef::EObjectType::Garment, std::move(Mesh)), ++LastItem);
	}

	/** What the editor tells the garment application next. */
	Zef::FDecodedItem ReceiveFault()
	{
		const std::vector<Zef::FBytes> Parts = Application->ReceiveFrame(Zef::EFrame::Item);
		LinkTest::FDecoding Reports(Zef::EReceiver::GarmentApplication);
		return Parts.size() == 2 && Reports.Feed(Parts[1], {}) == Zef::EDecode::Complete ? Reports.Decoder.Take()
																						 : Zef::FDecodedItem();
	}

	FTemporaryFolder Folder;
	std::unique_ptr<LinkTest::FRawApplication> Application;
	std::uint64_t LastItem = 0;
};

struct FBadObject
{
	const char* Fault;
	const char* Path;
	std::function<void(Zef::FSurfaceMesh&)> Spoil;
};

const FBadObject BadObjects[] = {
	{"IndexRange (405)", "/Surfaces/0/Sections/0/Indices/5",
		[](Zef::FSurfaceMesh& Mesh) { Mesh.Surfaces[0].Sections[0].Indices[5] = 99; }},
	{"NotFinite (415)", "/Surfaces/0/Normals/3/Y",
		[](Zef::FSurfaceMesh& Mesh) { Mesh.Surfaces[0].Normals[3].Y = std::numeric_limits<float>::quiet_NaN(); }},
	{"VertexOffset (404)", "/Surfaces/0/VertexOffset",
		[](Zef::FSurfaceMesh& Mesh) { Mesh.Surfaces[0].VertexOffset = 3; }},
	{"KeyTwice (416)", "/Textures/1",
		[](Zef::FSurfaceMesh& Mesh) {
			Mesh.Textures = {{1, {}}, {1, {}}};
		}},
};

} // namespace

TEST_F(RefusedReplies, LeaveWhatIsShownAndAreToldOnceToTheLogAndToTheSender)
{
	SendGarment(LinkTest::StripMesh(8));
	ASSERT_TRUE(Until([this] { return Editor->GetObjectComponents(2).Num() == 1; }));
	UPrimitiveComponent* const Shown = Editor->GetObjectComponents(2)[0];

	for (const FBadObject& Bad : BadObjects)
	{
		SCOPED_TRACE(Bad.Fault);
		Log().ExpectError(Bad.Fault);
		const auto Mesh = LinkTest::StripMesh(8);
		Bad.Spoil(*Mesh);
		SendGarment(Mesh);

		const Zef::FDecodedItem Told = ReceiveFault();
		EXPECT_EQ(Told.Item, Zef::EItem::Fault);
		EXPECT_EQ(Told.Fault.Path, Bad.Path);
		EXPECT_EQ(Told.FaultItem, LastItem);
		ASSERT_TRUE(Until([&] { return Log().CountContaining(Bad.Fault) > 0; }));
		TickFor(0.1);
		EXPECT_EQ(Log().CountContaining(Bad.Fault), 1);
		EXPECT_EQ(Log().CountContaining(std::string("Tandem link: ") + Bad.Fault + " at " + Bad.Path), 1);
		ASSERT_EQ(Editor->GetObjectComponents(2).Num(), 1);
		EXPECT_EQ(Editor->GetObjectComponents(2)[0], Shown);
	}

	SendGarment(LinkTest::StripMesh(12));
	ASSERT_TRUE(
		Until([&] { return Editor->GetObjectComponents(2).Num() == 1 && Editor->GetObjectComponents(2)[0] != Shown; }));
}
