// SPDX-License-Identifier: MIT
/** A garment application and an editor of one process on an endpoint of their own, and what each of them was told. */
#pragma once

#include "SampleRecords.h"
#include "Zef/ClientEndpoint.h"
#include "Zef/RecordPool.h"
#include "Zef/ServerEndpoint.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <optional>

namespace LinkTest
{

/** Waits longer than this are failures. */
inline constexpr std::chrono::seconds Patience(30);

/** A folder that only this user may enter, gone with the test. */
class FTestFolder
{
public:
	FTestFolder()
	{
		std::string Pattern = (std::filesystem::temp_directory_path() / "zef-link-XXXXXX").string();
		Path = mkdtemp(Pattern.data());
	}
	~FTestFolder() { std::filesystem::remove_all(Path); }
	FTestFolder(const FTestFolder&) = delete;
	FTestFolder& operator=(const FTestFolder&) = delete;

	std::string Socket(const std::string& Name = "test") const { return "ipc://" + Path + "/" + Name + ".sock"; }

	std::string Path;
};

/** Records what the garment application is told, and answers through Answer when that is set. */
class FApplication : public Zef::IServerHandler
{
public:
	explicit FApplication(const std::string& Endpoint, const Zef::FServerOptions& Options = {})
	{
		auto Opened = Zef::FServerEndpoint::OpenEndpoint(Endpoint, Options);
		if (Opened)
		{
			Server = std::move(*Opened);
		}
		OpenFault = Opened.Fault();
	}

	void Poll(std::chrono::milliseconds Wait = std::chrono::milliseconds(0)) { Server->Poll(*this, Wait); }

	void OnClientConnected(Zef::FClientId Client, const std::string& Program) override
	{
		LastClient = Client;
		++Connected;
		Programs.push_back(Program);
	}
	void OnClientGone(Zef::FClientId, const std::string&) override { ++Gone; }
	void OnEnable(Zef::FClientId, bool bEnabled) override { Enables.push_back(bEnabled); }
	void OnUpdateRequested(Zef::FClientId Client, const Zef::FPackingOptions& Options) override
	{
		Updates.push_back(Options);
		if (OnUpdate)
		{
			OnUpdate(Client);
		}
	}
	void OnAnimationRequested(
		Zef::FClientId Client, const Zef::FObjectTypeInfo& Info, const Zef::FPackingOptions& Options) override
	{
		AnimationInfos.push_back(Info);
		AnimationOptions.push_back(Options);
		if (OnAnimation)
		{
			OnAnimation(Client, Info);
		}
	}
	void OnAvailabilityRequested(Zef::FClientId Client) override
	{
		++Availabilities;
		Server->SendAvailability(Client, {false, true, false, true, true});
	}
	void OnJointAnimation(Zef::FClientId, const Zef::FObjectTypeInfo& Info,
		std::shared_ptr<const Zef::FJointAnimation> Animation) override
	{
		SentInfos.push_back(Info);
		SentAnimations.push_back(std::move(Animation));
	}
	void OnFault(Zef::FClientId, const Zef::FLinkFault& Fault, bool bFromClient) override
	{
		(bFromClient ? FaultsOfClient : Faults).push_back(Fault);
	}

	std::unique_ptr<Zef::FServerEndpoint> Server;
	Zef::FLinkFault OpenFault;
	Zef::FClientId LastClient = 0;
	int Connected = 0;
	int Gone = 0;
	int Availabilities = 0;
	std::vector<std::string> Programs;
	std::vector<bool> Enables;
	std::vector<Zef::FPackingOptions> Updates;
	std::vector<Zef::FObjectTypeInfo> AnimationInfos;
	std::vector<Zef::FPackingOptions> AnimationOptions;
	std::vector<Zef::FObjectTypeInfo> SentInfos;
	std::vector<std::shared_ptr<const Zef::FJointAnimation>> SentAnimations;
	std::vector<Zef::FLinkFault> Faults;
	std::vector<Zef::FLinkFault> FaultsOfClient;
	std::function<void(Zef::FClientId)> OnUpdate;
	std::function<void(Zef::FClientId, const Zef::FObjectTypeInfo&)> OnAnimation;
};

/** Records what the editor is told. */
class FEditor : public Zef::IRecordHandler
{
public:
	explicit FEditor(const std::string& Endpoint, const Zef::FClientOptions& Options = {})
	{
		auto Opened = Zef::FClientEndpoint::OpenEndpoint(Endpoint, std::make_shared<Zef::FRecordFactory>(), Options);
		if (Opened)
		{
			Client = std::move(*Opened);
		}
		OpenFault = Opened.Fault();
	}

	void Poll(std::chrono::milliseconds Wait = std::chrono::milliseconds(0)) { Client->Poll(*this, Wait); }

	void OnSurfaceMesh(Zef::EObjectType ObjectType, Zef::FSurfaceMesh&& Mesh) override
	{
		MeshTypes.push_back(ObjectType);
		Meshes.push_back(std::move(Mesh));
	}
	void OnJointAnimation(Zef::EObjectType, Zef::FJointAnimation&& Animation) override
	{
		Animations.push_back(std::move(Animation));
	}
	void OnMeshSequence(
		Zef::EObjectType, Zef::FSurfaceMesh&& Mesh, std::vector<Zef::FMeshSequenceFrame>&& InFrames) override
	{
		SequenceMeshes.push_back(std::move(Mesh));
		Frames.push_back(std::move(InFrames));
	}
	void OnAvailability(const Zef::FAvailability& Availability) override { Availabilities.push_back(Availability); }
	void OnUpdateAnnounced(const Zef::FUpdateAnnouncement& Announcement) override
	{
		Announcements.push_back(Announcement);
	}
	void OnConnectionChanged(bool bConnected, const std::string& Reason) override
	{
		Connections.push_back(bConnected);
		Reasons.push_back(Reason);
	}
	void OnFault(const Zef::FLinkFault& Fault, bool bFromPeer) override
	{
		(bFromPeer ? FaultsOfPeer : Faults).push_back(Fault);
	}

	std::unique_ptr<Zef::FClientEndpoint> Client;
	Zef::FLinkFault OpenFault;
	std::vector<Zef::EObjectType> MeshTypes;
	std::vector<Zef::FSurfaceMesh> Meshes;
	std::vector<Zef::FJointAnimation> Animations;
	std::vector<Zef::FSurfaceMesh> SequenceMeshes;
	std::vector<std::vector<Zef::FMeshSequenceFrame>> Frames;
	std::vector<Zef::FAvailability> Availabilities;
	std::vector<Zef::FUpdateAnnouncement> Announcements;
	std::vector<bool> Connections;
	std::vector<std::string> Reasons;
	std::vector<Zef::FLinkFault> Faults;
	std::vector<Zef::FLinkFault> FaultsOfPeer;
};

/** Lets whoever is given handle what arrives until Done is true. False when that takes too long. */
inline bool Until(FEditor* Editor, FApplication* Application, const std::function<bool()>& Done)
{
	const auto Deadline = std::chrono::steady_clock::now() + Patience;
	while (!Done())
	{
		if (std::chrono::steady_clock::now() > Deadline)
		{
			return false;
		}
		if (Application != nullptr)
		{
			Application->Poll(std::chrono::milliseconds(Editor != nullptr ? 1 : 20));
		}
		if (Editor != nullptr)
		{
			Editor->Poll(std::chrono::milliseconds(1));
		}
	}
	return true;
}

/** Fast attempts, so that restarts are noticed soon. */
inline Zef::FClientOptions QuickClient()
{
	Zef::FClientOptions Options;
	Options.Program = "test editor 1";
	Options.RetryTime = std::chrono::milliseconds(5);
	return Options;
}

} // namespace LinkTest
