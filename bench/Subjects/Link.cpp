// SPDX-License-Identifier: MIT
#include "Subjects/Subjects.h"

#include "Support/Comparison.h"
#include "Support/MeshServer.h"
#include "Support/Processes.h"
#include "Support/Samples.h"
#include "Zef/ClientEndpoint.h"
#include "ZEFReceivedRecord.h"

#include <cstring>
#include <sys/socket.h>
#include <unistd.h>

namespace Bench
{

namespace
{

constexpr double RequiredOfSocket = 0.8;
constexpr std::size_t PieceBytes = 1u << 20;

/** All arrays of the mesh one after the other. */
std::vector<std::uint8_t> Flatten(const Zef::FSurfaceMesh& Mesh)
{
	std::vector<std::uint8_t> Bytes;
	const auto Append = [&Bytes](const auto& Array)
	{
		const auto* Data = reinterpret_cast<const std::uint8_t*>(Array.data());
		Bytes.insert(Bytes.end(), Data, Data + Array.size() * sizeof(Array[0]));
	};
	const Zef::FSurface& Surface = Mesh.Surfaces[0];
	Append(Surface.Positions);
	Append(Surface.Normals);
	Append(Surface.Tangents);
	Append(Surface.UVs);
	Append(Surface.Sections[0].Indices);
	return Bytes;
}

/** Answers each byte with all of Bytes. */
void ServeBytes(const std::vector<std::uint8_t>& Bytes, int Socket)
{
	char Request = 1;
	while (write(Socket, &Request, 1) == 1 && read(Socket, &Request, 1) == 1)
	{
		for (std::size_t Sent = 0; Sent < Bytes.size();)
		{
			const ssize_t Taken =
				send(Socket, Bytes.data() + Sent, std::min(PieceBytes, Bytes.size() - Sent), MSG_NOSIGNAL);
			if (Taken <= 0)
			{
				return;
			}
			Sent += static_cast<std::size_t>(Taken);
		}
	}
}

/** Keeps the last object that arrived. */
class FReceiver : public Zef::IClientHandler
{
public:
	std::unique_ptr<Zef::IRecordSink> Record;
	std::string Trouble;

	void OnItem(Zef::FReceivedItem& Item) override { Record = std::move(Item.Record); }
	void OnAvailability(const Zef::FAvailability&) override {}
	void OnConnectionChanged(bool bConnected, const std::string& Reason) override
	{
		Trouble = bConnected ? std::string() : Reason;
	}
	void OnFault(const Zef::FLinkFault& Fault, bool) override { Trouble = Zef::ToString(Fault); }
};

/** Both servers, the connection and the buffers. */
struct FCase
{
	std::vector<std::uint8_t> Bytes;
	std::vector<std::uint8_t> Target;
	std::unique_ptr<FChildProcess> MeshServer;
	std::unique_ptr<FChildProcess> ByteServer;
	std::unique_ptr<Zef::FClientEndpoint> Client;
	FReceiver Receiver;

	/** Asks for the object and waits for it. */
	bool Update()
	{
		Client->SendUpdate({});
		while (!Receiver.Record && Receiver.Trouble.empty())
		{
			Client->Poll(Receiver, std::chrono::milliseconds(1000));
		}
		return Receiver.Record != nullptr;
	}

	/** The same bytes through the bare socket. */
	bool ReadBytes()
	{
		if (!ByteServer->WaitForByte())
		{
			return false;
		}
		const char Request = 1;
		if (write(ByteServer->Socket(), &Request, 1) != 1)
		{
			return false;
		}
		for (std::size_t Received = 0; Received < Target.size();)
		{
			const ssize_t Taken =
				recv(ByteServer->Socket(), Target.data() + Received, std::min(PieceBytes, Target.size() - Received), 0);
			if (Taken <= 0)
			{
				return false;
			}
			Received += static_cast<std::size_t>(Taken);
		}
		return true;
	}

	bool IsRecordWhole() const
	{
		const FZEFSurface& Surface =
			static_cast<const FZEFReceivedRecord&>(*Receiver.Record).Animation.Mesh.Surfaces[0];
		const std::uint8_t* Expected = Bytes.data();
		const auto Matches = [&Expected](const auto& Array)
		{
			const std::size_t Size = static_cast<std::size_t>(Array.Num()) * sizeof(Array[0]);
			const bool bSame = std::memcmp(Array.GetData(), Expected, Size) == 0;
			Expected += Size;
			return bSame;
		};
		return Matches(Surface.Positions) && Matches(Surface.Normals) && Matches(Surface.Tangents) &&
			   Matches(Surface.UVs) && Matches(Surface.Sections[0].Indices) && Expected == Bytes.data() + Bytes.size();
	}
};

} // namespace

void MeasureLink(FSuite& Suite)
{
	const auto Case = std::make_shared<FCase>();
	const auto Mesh = std::make_shared<const Zef::FSurfaceMesh>(MakeCloth(1000, 1000));
	Case->Bytes = Flatten(*Mesh);
	Case->Target.resize(Case->Bytes.size(), 1);
	const std::string Endpoint = FreshEndpoint("link.sock");
	Case->MeshServer = std::make_unique<FChildProcess>(
		[&](int Socket) { ServeMesh(Endpoint, Mesh, Zef::EObjectType::Garment, Socket); });
	Case->ByteServer = std::make_unique<FChildProcess>([&](int Socket) { ServeBytes(Case->Bytes, Socket); });
	if (!Case->MeshServer->WaitForByte())
	{
		Suite.Fail("no garment application can be started at " + Endpoint);
		return;
	}
	auto Opened = Zef::FClientEndpoint::OpenEndpoint(Endpoint, std::make_shared<FZEFRecordFactory>());
	if (!Opened)
	{
		Suite.Fail(Zef::ToString(Opened.Fault()));
		return;
	}
	Case->Client = std::move(*Opened);
	if (!Case->Update() || !Case->IsRecordWhole())
	{
		Suite.Fail("the object did not arrive as it was sent. " + Case->Receiver.Trouble);
		return;
	}
	Case->Receiver.Record.reset();
	if (!Case->ReadBytes() || Case->Target != Case->Bytes)
	{
		Suite.Fail("the bytes did not arrive as they were sent");
		return;
	}

	FComparison Comparison;
	Comparison.Title = "One update of 68 MB between two processes";
	Comparison.Items = static_cast<double>(Case->Bytes.size());
	Comparison.Unit = "bytes";
	Comparison.Contenders.push_back({"the link, into checked records of the plug-in", [Case] { Case->Update(); },
		[Case] { Case->Receiver.Record.reset(); }});
	Comparison.Contenders.push_back(
		{"local socket, 1 MiB at a time, into touched memory", [Case] { Case->ReadBytes(); }, {}, RequiredOfSocket});
	Comparison.Contenders.push_back(
		{"memcpy, warm", [Case] { std::memcpy(Case->Target.data(), Case->Bytes.data(), Case->Bytes.size()); }, {}});
	Suite.Add(std::move(Comparison));
}

} // namespace Bench
