// SPDX-License-Identifier: MIT
#include "KeyCheck.h"

#include "Sockets.h"

#include <array>

namespace Zef
{

namespace
{
/** Where ZeroMQ looks for whoever decides, in each context. */
constexpr const char* QuestionsAddress = "inproc://zeromq.zap.01";
constexpr const char* Domain = "zef-tandem";

/** Parts of a question: version, number, domain, address, identity, mechanism, key. */
constexpr std::size_t QuestionParts = 7;
} // namespace

void UseKeysAsEditor(zmq::socket_t& Socket, const FLinkKeys& Keys)
{
	Socket.set(zmq::sockopt::curve_publickey, Keys.PublicKey);
	Socket.set(zmq::sockopt::curve_secretkey, Keys.SecretKey);
	Socket.set(zmq::sockopt::curve_serverkey, Keys.OtherPublicKey);
}

void UseKeysAsApplication(zmq::socket_t& Socket, const FLinkKeys& Keys)
{
	Socket.set(zmq::sockopt::curve_server, true);
	Socket.set(zmq::sockopt::curve_secretkey, Keys.SecretKey);
	Socket.set(zmq::sockopt::zap_domain, Domain);
}

FKeyCheck::FKeyCheck(zmq::context_t& Context, const FLinkKeys& InKeys)
	: Questions(Context, zmq::socket_type::rep)
{
	std::array<std::uint8_t, 32> Bytes{};
	zmq_z85_decode(Bytes.data(), InKeys.OtherPublicKey.c_str());
	Admitted.assign(Bytes.begin(), Bytes.end());
	Questions.set(zmq::sockopt::linger, 0);
	Questions.bind(QuestionsAddress);
}

std::size_t FKeyCheck::Answer()
{
	std::size_t TurnedAway = 0;
	while (true)
	{
		std::vector<std::string> Parts;
		zmq::message_t Part;
		do
		{
			if (!Questions.recv(Part, zmq::recv_flags::dontwait))
			{
				return TurnedAway;
			}
			Parts.push_back(Part.to_string());
		} while (Part.more());
		const bool bAdmitted =
			Parts.size() == QuestionParts && Parts[2] == Domain && Parts[5] == "CURVE" && Parts[6] == Admitted;
		TurnedAway += bAdmitted ? 0 : 1;
		const std::string Number = Parts.size() > 1 ? Parts[1] : "";
		const std::array<std::string, 6> Reply{
			"1.0", Number, bAdmitted ? "200" : "400", bAdmitted ? "OK" : "This key is not admitted.", "", ""};
		for (std::size_t Index = 0; Index < Reply.size(); ++Index)
		{
			Questions.send(
				zmq::buffer(Reply[Index]), Index + 1 < Reply.size() ? zmq::send_flags::sndmore : zmq::send_flags::none);
		}
	}
}

} // namespace Zef
