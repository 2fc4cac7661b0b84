// SPDX-License-Identifier: MIT
#include "Zef/Peer/Server.h"

#include <atomic>

#include <fmt/format.h>

#include "Server/ObjectCache.h"
#include "Zef/ServerEndpoint.h"

namespace Zef::Peer
{

namespace
{

constexpr const char* ProgramName = "zef-peer 0.1";

std::string Describe(const FPackingOptions& Options)
{
	if (!Options.bWeld && !Options.bUnifiedMaterial)
	{
		return "as it is";
	}
	return fmt::format("{}{}{}", Options.bWeld ? "welded" : "", Options.bWeld && Options.bUnifiedMaterial ? ", " : "",
		Options.bUnifiedMaterial ? "unified material" : "");
}

std::string Describe(const FSurfaceMesh& Mesh)
{
	if (Mesh.Surfaces.empty())
	{
		return "empty";
	}
	const FObjectCounts Counts = CountObject(Mesh);
	return fmt::format("{} surfaces, {} vertices, {} triangles, {} joints, {} materials, {} textures",
		Mesh.Surfaces.size(), Counts.Vertices, Counts.Triangles, Mesh.Joints.size(), Mesh.Materials.size(),
		Mesh.Textures.size());
}

} // namespace

class FServer::FImpl : public IServerHandler
{
public:
	FImpl(FProject Project, FServerSettings InSettings)
		: Objects(std::move(Project))
		, Settings(std::move(InSettings))
	{
	}

	void OnClientConnected(FClientId Client, const std::string& Program) override
	{
		++Counts.ClientsConnected;
		Say("editor {} connected: {}", Client, Program);
	}

	void OnClientGone(FClientId Client, const std::string& Reason) override
	{
		++Counts.ClientsGone;
		Say("editor {} gone: {}", Client, Reason);
	}

	void OnEnable(FClientId Client, bool bEnabled) override
	{
		Counts.bEnabled = bEnabled;
		Say("editor {} switched the link {}", Client, bEnabled ? "on" : "off");
	}

	void OnUpdateRequested(FClientId Client, const FPackingOptions& Options) override
	{
		++Counts.Updates;
		Say("editor {} asks for an update ({})", Client, Describe(Options));
		std::vector<FUpdateObject> Update;
		for (const FProjectObject& Object : Objects.Project().Objects)
		{
			Update.push_back({Object.Type, Objects.Mesh(Object.Type, Options)});
		}
		// An editor counts an update as done when it has seen these two.
		for (const EObjectType Type : {EObjectType::Garment, EObjectType::Avatar})
		{
			if (!Objects.Project().Find(Type))
			{
				Update.push_back({Type, Objects.Mesh(Type, Options)});
			}
		}
		std::vector<FLinkFault> Faults;
		Endpoint->SendUpdate(Client, Update, &Faults);
		for (std::size_t Index = 0; Index < Update.size(); ++Index)
		{
			Say("  {}: {}{}", ObjectTypeName(Update[Index].ObjectType), Describe(*Update[Index].Mesh),
				Outcome(!Faults[Index], Faults[Index]));
		}
	}

	void OnAnimationRequested(FClientId Client, const FObjectTypeInfo& Info, const FPackingOptions& Options) override
	{
		++Counts.Animations;
		const char* Name = ObjectTypeName(Info.ObjectType);
		FLinkFault Fault;
		bool bSent = false;
		if (Info.AnimationKind == EAnimationKind::JointAnimation)
		{
			const auto Animation = Objects.JointAnimation(Info.ObjectType, Options);
			bSent = Endpoint->SendJointAnimation(Client, Info.ObjectType, Animation, &Fault);
			Say("editor {} asks for the joint animation of the {}: {} frames{}", Client, Name,
				Animation->Sequence.Frames.size(), Outcome(bSent, Fault));
		}
		else
		{
			if (Objects.IsMeshSequenceWaiting(Info.ObjectType))
			{
				Say("preparing the vertex animation of the {} ...", Name);
			}
			const auto Frames = Objects.MeshSequence(Info.ObjectType, Options);
			const auto Mesh = Objects.Mesh(Info.ObjectType, Options);
			const auto FrameAt = [Frames](std::uint32_t Index)
			{ return Index < Frames->size() ? (*Frames)[Index] : std::shared_ptr<const FMeshSequenceFrame>(); };
			bSent = Endpoint->SendMeshSequence(Client, Info.ObjectType, Mesh, FrameAt, &Fault);
			Say("editor {} asks for the vertex animation of the {}: {} frames{}", Client, Name, Frames->size(),
				Outcome(bSent, Fault));
		}
	}

	void OnAvailabilityRequested(FClientId Client) override
	{
		++Counts.AvailabilityReplies;
		const FAvailability Flags = ProjectAvailability(Objects.Project());
		Endpoint->SendAvailability(Client, Flags);
		Say("editor {} asks what there is: garment {}, its animation {}, avatar {}, its animation {}, its skeleton {}",
			Client, YesNo(Flags.bFlag0), YesNo(Flags.bGarmentHasAnimation), YesNo(Flags.bFlag2),
			YesNo(Flags.bAvatarHasAnimation), YesNo(Flags.bAvatarHasSkeleton));
	}

	void OnJointAnimation(
		FClientId Client, const FObjectTypeInfo& Info, std::shared_ptr<const FJointAnimation> Animation) override
	{
		++Counts.AnimationsReceived;
		Say("editor {} sends a joint animation for the {}: {} frames; mesh: {}", Client,
			ObjectTypeName(Info.ObjectType), Animation->Sequence.Frames.size(), Describe(Animation->Mesh));
		if (!Settings.Store)
		{
			Say("it is not stored: no folder was named");
			return;
		}
		const FStoreResult Result = Settings.Store->Store(Info, *Animation);
		if (Result.Succeeded())
		{
			Say("stored as {}", Result.File.string());
			return;
		}
		Say("could not store it: {}", Result.Error);
		Endpoint->SendFault(Client, MakeFault(EFault::PeerFailed, "", Result.Error));
	}

	void OnFault(FClientId Client, const FLinkFault& Fault, bool bFromClient) override
	{
		++Counts.Faults;
		Say("{} editor {}: {}", bFromClient ? "fault told by" : "refused a message of", Client, ToString(Fault));
	}

	static std::string Outcome(bool bSent, const FLinkFault& Fault)
	{
		if (bSent)
		{
			return "";
		}
		return Fault ? " -- not sent: " + ToString(Fault) : " -- not sent: the editor has gone";
	}

	static const char* YesNo(bool b) { return b ? "yes" : "no"; }

	template <typename... TArguments>
	void Say(fmt::format_string<TArguments...> Format, TArguments&&... Arguments)
	{
		if (Settings.Log)
		{
			Settings.Log(fmt::format(Format, std::forward<TArguments>(Arguments)...));
		}
	}

	FObjectCache Objects;
	FServerSettings Settings;
	FServerCounts Counts;
	std::atomic<bool> bStop{false};
	std::unique_ptr<FServerEndpoint> Endpoint;
};

TResult<std::unique_ptr<FServer>> FServer::Open(FProject Project, FServerSettings Settings)
{
	FServerOptions Options;
	Options.Program = ProgramName;
	Options.KeyFile = Settings.KeyFile;
	auto Endpoint = Settings.Endpoint.empty() ? FServerEndpoint::Open(Settings.Channel, Options)
											  : FServerEndpoint::OpenEndpoint(Settings.Endpoint, Options);
	if (!Endpoint)
	{
		return Endpoint.Fault();
	}
	auto Impl = std::make_unique<FImpl>(std::move(Project), std::move(Settings));
	Impl->Endpoint = std::move(*Endpoint);
	return std::unique_ptr<FServer>(new FServer(std::move(Impl)));
}

FServer::FServer(std::unique_ptr<FImpl> InImpl)
	: Impl(std::move(InImpl))
{
}

FServer::~FServer() = default;

const std::string& FServer::Endpoint() const
{
	return Impl->Endpoint->Endpoint();
}

std::size_t FServer::Serve(std::chrono::milliseconds MaxWait)
{
	return Impl->Endpoint->Poll(*Impl, MaxWait);
}

void FServer::Run(std::size_t Clients)
{
	// Stop wakes the wait; its length only bounds how long a stop that comes between test and wait could take.
	constexpr std::chrono::milliseconds Wait{250};
	while (!Impl->bStop && (Clients == 0 || Impl->Counts.ClientsGone < Clients))
	{
		Serve(Wait);
	}
}

void FServer::Stop()
{
	Impl->bStop = true;
	Impl->Endpoint->Wake();
}

const FServerCounts& FServer::Counts() const
{
	return Impl->Counts;
}

} // namespace Zef::Peer
