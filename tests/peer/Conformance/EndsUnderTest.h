// SPDX-License-Identifier: MIT
/** The library's two ends with the options that a case needs, and what their programs were told. */
#pragma once

#include "Zef/ClientEndpoint.h"
#include "Zef/RecordPool.h"
#include "Zef/ServerEndpoint.h"
#include "Zef/Peer/ConformanceCase.h"
#include "protocol/LinkFixture.h"

#include <atomic>
#include <ostream>
#include <thread>

namespace Zef::Peer
{
/** How the parameter of a test reads in its output. */
inline void PrintTo(const FConformanceCase& Case, std::ostream* Out)
{
	*Out << Case.Name;
}
} // namespace Zef::Peer

namespace ConformanceTest
{

/** Limits of the library, changed as a case needs them. */
inline Zef::FLimits LimitsFor(const Zef::Peer::FConformanceCase& Case)
{
	Zef::FLimits Limits;
	for (const auto& [Name, Value] : Case.Needs)
	{
		const auto Bytes = static_cast<std::uint32_t>(Value);
		Limits.MaxPieceBytes = Name == "MaxPieceBytes" ? Bytes : Limits.MaxPieceBytes;
		Limits.MaxHeaderBytes = Name == "MaxHeaderBytes" ? Bytes : Limits.MaxHeaderBytes;
		Limits.MaxItemBytes = Name == "MaxItemBytes" ? Value : Limits.MaxItemBytes;
		Limits.WindowBytes = Name == "WindowBytes" ? Value : Limits.WindowBytes;
		Limits.MaxClients = Name == "MaxClients" ? Bytes : Limits.MaxClients;
		Limits.MaxRequestsPerSecond = Name == "MaxRequestsPerSecond" ? Bytes : Limits.MaxRequestsPerSecond;
	}
	return Limits;
}

/** Value of an option of a case, or the default. */
inline std::uint64_t OptionOf(const Zef::Peer::FConformanceCase& Case, const std::string& Name, std::uint64_t Default)
{
	for (const auto& [Each, Value] : Case.Needs)
	{
		Default = Each == Name ? Value : Default;
	}
	return Default;
}

/** Faults as the program of the end under test hears of them. */
struct FHeard
{
	std::vector<Zef::FLinkFault> Own;
	std::vector<Zef::FLinkFault> OfTheOtherEnd;
};

/** Records that have no memory for arrays. */
class FNoMemoryFactory : public Zef::IRecordFactory
{
public:
	std::unique_ptr<Zef::IRecordSink> MakeSink(Zef::EItem, Zef::EObjectType) override
	{
		class FSink : public Zef::IRecordSink
		{
			void Mesh(Zef::FMeshHeader&&) override {}
			void* Allocate(const Zef::FArraySlot&) override { return nullptr; }
			void JointSequence(Zef::FPackedJointSequence&&) override {}
			void Frame(std::uint32_t, double) override {}
			void Finish() override {}
		};
		return std::make_unique<FSink>();
	}
};

/** An editor whose program listens on a thread of its own. */
class FEditorUnderTest : public Zef::IClientHandler
{
public:
	FEditorUnderTest(const Zef::Peer::FConformanceCase& Case, const std::string& Endpoint)
	{
		Zef::FClientOptions Options;
		Options.Limits = LimitsFor(Case);
		Options.RetryTime = std::chrono::milliseconds(5);
		Options.StallTime = std::chrono::milliseconds(OptionOf(Case, "StallMilliseconds", 10000));
		std::shared_ptr<Zef::IRecordFactory> Factory = std::make_shared<Zef::FRecordFactory>();
		if (OptionOf(Case, "Memory", 1) == 0)
		{
			Factory = std::make_shared<FNoMemoryFactory>();
		}
		Client = std::move(*Zef::FClientEndpoint::OpenEndpoint(Endpoint, std::move(Factory), Options));
		Listener = std::thread([this] { Listen(); });
	}

	/** What was heard when the conversation was over. @param bFault  one will be heard */
	FHeard Finish(bool bFault)
	{
		bOver = true;
		Listener.join();
		const auto Deadline = std::chrono::steady_clock::now() + LinkTest::Patience;
		do
		{
			Client->Poll(*this, std::chrono::milliseconds(bFault && Heard.Own.empty() ? 5 : 0));
		} while (bFault && Heard.Own.empty() && std::chrono::steady_clock::now() < Deadline);
		return Heard;
	}

private:
	void Listen()
	{
		while (!bOver)
		{
			Client->Poll(*this, std::chrono::milliseconds(5));
		}
	}
	void OnItem(Zef::FReceivedItem&) override {}
	void OnAvailability(const Zef::FAvailability&) override {}
	void OnConnectionChanged(bool, const std::string&) override {}
	void OnFault(const Zef::FLinkFault& Fault, bool bFromPeer) override
	{
		(bFromPeer ? Heard.OfTheOtherEnd : Heard.Own).push_back(Fault);
	}

	std::unique_ptr<Zef::FClientEndpoint> Client;
	std::atomic<bool> bOver{false};
	FHeard Heard;
	std::thread Listener;
};

/** A garment application of the sample meshes. */
class FApplicationUnderTest : public LinkTest::FApplication
{
public:
	FApplicationUnderTest(const Zef::Peer::FConformanceCase& Case, const std::string& Endpoint)
		: FApplication(Endpoint, OptionsFor(Case))
	{
		OnUpdate = [this](Zef::FClientId Client)
		{
			for (const Zef::EObjectType Type : {Zef::EObjectType::Garment, Zef::EObjectType::Avatar})
			{
				Server->SendSurfaceMesh(Client, Type, LinkTest::SampleMesh());
			}
		};
		// A window that is overrun stays so only while nobody listens.
		if (OptionOf(Case, "WindowBytes", 0) == 0)
		{
			Listener = std::thread([this] { Listen(); });
		}
	}

	/** @param bFault  the program will hear of one, perhaps a moment after the other end */
	FHeard Finish(bool bFault)
	{
		bOver = true;
		if (Listener.joinable())
		{
			Listener.join();
		}
		LinkTest::Until(nullptr, this, [this, bFault] { return !bFault || !Faults.empty(); });
		return {Faults, FaultsOfClient};
	}

	/** Waits until the editor is gone, and sends to it all the same. */
	Zef::FLinkFault SendToTheLost()
	{
		bOver = true;
		Listener.join();
		LinkTest::Until(nullptr, this, [this] { return Gone > 0; });
		Zef::FLinkFault Fault;
		Server->SendSurfaceMesh(LastClient, Zef::EObjectType::Avatar, LinkTest::SampleMesh(), &Fault);
		return Fault;
	}

private:
	static Zef::FServerOptions OptionsFor(const Zef::Peer::FConformanceCase& Case)
	{
		Zef::FServerOptions Options;
		Options.Limits = LimitsFor(Case);
		Options.StallTime = std::chrono::milliseconds(OptionOf(Case, "StallMilliseconds", 10000));
		return Options;
	}
	void Listen()
	{
		while (!bOver)
		{
			Poll(std::chrono::milliseconds(5));
		}
	}

	std::atomic<bool> bOver{false};
	std::thread Listener;
};

} // namespace ConformanceTest
