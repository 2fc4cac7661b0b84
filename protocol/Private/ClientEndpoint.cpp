// SPDX-License-Identifier: MIT
#include "Zef/ClientEndpoint.h"

#include "ClientLoop.h"
#include "Zef/Check.h"

namespace Zef
{

namespace
{
FLinkFault CheckInfo(const FObjectTypeInfo& Info, EAnimationKind Highest)
{
	if (!IsObjectType(Info.ObjectType))
	{
		return MakeFault(EFault::ObjectType, "/ObjectType",
			"2, 4, 8 or 16 was expected; " + std::to_string(static_cast<std::int32_t>(Info.ObjectType)) + " came.");
	}
	if (Info.AnimationKind < EAnimationKind::MeshSequence || Info.AnimationKind > Highest)
	{
		return MakeFault(EFault::AnimationKind, "/AnimationKind",
			"0 to " + std::to_string(static_cast<std::int32_t>(Highest)) + " was expected; " +
				std::to_string(static_cast<std::int32_t>(Info.AnimationKind)) + " came.");
	}
	return {};
}

FLinkFault CheckAnimation(const FObjectTypeInfo& Info, const FJointAnimation* Animation, const FLimits& Limits)
{
	if (FLinkFault Fault = CheckInfo(Info, EAnimationKind::None))
	{
		return Fault;
	}
	if (Animation == nullptr)
	{
		return MakeFault(EFault::MissingField, "/Mesh", "There is no animation.");
	}
	if (FLinkFault Fault = CheckStructure(Animation->Mesh, CountsOf(Animation->Mesh), EIndexBase::Model, Limits))
	{
		Fault.Path = "/Mesh" + Fault.Path;
		return Fault;
	}
	return CheckJointSequence(Pack(Animation->Sequence), Animation->Mesh.Joints.size(), Limits);
}

template <class TImpl>
TResult<std::unique_ptr<TImpl>> Start(const std::string& Name, TResult<FOpenAddress>&& Address,
	std::shared_ptr<IRecordFactory>&& Factory, const FClientOptions& Options)
{
	if (!Address)
	{
		return Address.Fault();
	}
	auto Impl = std::make_unique<TImpl>(Name, std::move(*Address), std::move(Factory), Options);
	if (FLinkFault Fault = Impl->Start())
	{
		return Fault;
	}
	return Impl;
}
} // namespace

FClientEndpoint::FClientEndpoint(std::unique_ptr<FImpl> InImpl)
	: Impl(std::move(InImpl))
{
}

FClientEndpoint::~FClientEndpoint() = default;

TResult<std::unique_ptr<FClientEndpoint>> FClientEndpoint::Open(
	const std::string& ChannelName, std::shared_ptr<IRecordFactory> Factory, const FClientOptions& Options)
{
	auto Started = Start<FImpl>(ChannelName, OpenAddress(ChannelName, std::nullopt, Options.KeyFile, ELinkEnd::Editor),
		std::move(Factory), Options);
	if (!Started)
	{
		return Started.Fault();
	}
	return std::unique_ptr<FClientEndpoint>(new FClientEndpoint(std::move(*Started)));
}

TResult<std::unique_ptr<FClientEndpoint>> FClientEndpoint::OpenEndpoint(
	const std::string& Endpoint, std::shared_ptr<IRecordFactory> Factory, const FClientOptions& Options)
{
	auto Started = Start<FImpl>(
		Endpoint, OpenAddress("", Endpoint, Options.KeyFile, ELinkEnd::Editor), std::move(Factory), Options);
	if (!Started)
	{
		return Started.Fault();
	}
	return std::unique_ptr<FClientEndpoint>(new FClientEndpoint(std::move(*Started)));
}

bool FClientEndpoint::IsConnected() const
{
	return Impl->IsConnected();
}

FLinkStatus FClientEndpoint::Status() const
{
	return Impl->Status();
}

FUpdateProgress FClientEndpoint::Progress() const
{
	return Impl->Status().Progress;
}

FLinkFault FClientEndpoint::FinishRecording()
{
	return Impl->FinishRecording();
}

std::size_t FClientEndpoint::Poll(IClientHandler& Handler, std::chrono::milliseconds MaxWait)
{
	return Impl->Poll(Handler, MaxWait);
}

void FClientEndpoint::Stop()
{
	Impl->Stop();
}

bool FClientEndpoint::SendEnable(bool bEnabled)
{
	return Impl->Send(EncodeEnable(bEnabled));
}

bool FClientEndpoint::SendUpdate(const FPackingOptions& Options)
{
	return Impl->Send(EncodeUpdateRequest(Options));
}

bool FClientEndpoint::SendAnimation(const FObjectTypeInfo& Info, const FPackingOptions& Options)
{
	return !CheckInfo(Info, EAnimationKind::JointAnimation) && Impl->Send(EncodeAnimationRequest(Info, Options));
}

bool FClientEndpoint::SendAvailability()
{
	return Impl->Send(EncodeAvailabilityRequest());
}

bool FClientEndpoint::SendJointAnimation(
	const FObjectTypeInfo& Info, std::shared_ptr<const FJointAnimation> Animation, FLinkFault* OutFault)
{
	const FClientOptions& Options = Impl->ClientOptions();
	FLinkFault Fault = CheckAnimation(Info, Animation.get(), Options.Limits);
	const bool bPasses = !Fault;
	if (OutFault != nullptr)
	{
		*OutFault = std::move(Fault);
	}
	return bPasses && Impl->Send(EncodeJointAnimationRequest(Info, std::move(Animation), Options.PieceBytes));
}

} // namespace Zef
