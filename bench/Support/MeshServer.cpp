// SPDX-License-Identifier: MIT
#include "Support/MeshServer.h"

#include "Zef/ServerEndpoint.h"

#include <sys/socket.h>
#include <unistd.h>

namespace Bench
{

namespace
{

class FHandler : public Zef::IServerHandler
{
public:
	Zef::FServerEndpoint* Server = nullptr; // not owned
	std::shared_ptr<const Zef::FSurfaceMesh> Mesh;
	Zef::EObjectType ObjectType = Zef::EObjectType::Invalid;

	void OnUpdateRequested(Zef::FClientId Client, const Zef::FPackingOptions&) override
	{
		Server->SendSurfaceMesh(Client, ObjectType, Mesh);
	}
	void OnAnimationRequested(Zef::FClientId, const Zef::FObjectTypeInfo&, const Zef::FPackingOptions&) override {}
	void OnAvailabilityRequested(Zef::FClientId Client) override { Server->SendAvailability(Client, {}); }
	void OnJointAnimation(
		Zef::FClientId, const Zef::FObjectTypeInfo&, std::shared_ptr<const Zef::FJointAnimation>) override
	{
	}
};

} // namespace

void ServeMesh(
	const std::string& Endpoint, std::shared_ptr<const Zef::FSurfaceMesh> Mesh, Zef::EObjectType ObjectType, int Socket)
{
	auto Opened = Zef::FServerEndpoint::OpenEndpoint(Endpoint);
	if (!Opened)
	{
		return;
	}
	FHandler Handler;
	Handler.Server = Opened->get();
	Handler.Mesh = std::move(Mesh);
	Handler.ObjectType = ObjectType;
	const char Ready = 1;
	if (write(Socket, &Ready, 1) != 1)
	{
		return;
	}
	char Byte = 0;
	while (recv(Socket, &Byte, 1, MSG_DONTWAIT) != 0)
	{
		Handler.Server->Poll(Handler, std::chrono::milliseconds(200));
	}
}

} // namespace Bench
