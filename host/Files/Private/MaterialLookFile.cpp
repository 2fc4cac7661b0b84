// SPDX-License-Identifier: MIT
#include "MaterialLookFile.h"

namespace Host
{
namespace
{
/** Wide enough for any fabric, narrow enough that a slip of the keyboard is found. */
constexpr float MaxRepetitions = 100000.0f;
constexpr float MaxFactor = 100.0f;
constexpr float MaxFilmNanometres = 5000.0f;
constexpr float MaxIndexOfRefraction = 4.0f;

void ReadSheen(const FJsonReader& Reader, FMaterialSheen& Sheen)
{
	Reader.AllowOnly({"color", "roughness", "tinted"});
	Reader.Read("color", Sheen.Color);
	Reader.Read("roughness", Sheen.Roughness, 0.0f, 1.0f);
	Reader.Read("tinted", Sheen.bTinted);
}

void ReadClearcoat(const FJsonReader& Reader, FMaterialClearcoat& Clearcoat)
{
	Reader.AllowOnly({"amount", "roughness"});
	Reader.Read("amount", Clearcoat.Amount, 0.0f, 1.0f);
	Reader.Read("roughness", Clearcoat.Roughness, 0.0f, 1.0f);
}

void ReadAnisotropy(const FJsonReader& Reader, FMaterialAnisotropy& Anisotropy)
{
	Reader.AllowOnly({"amount", "angle"});
	Reader.Read("amount", Anisotropy.Amount, -1.0f, 1.0f);
	Reader.Read("angle", Anisotropy.Angle, -1.0f, 1.0f);
}

void ReadIridescence(const FJsonReader& Reader, FMaterialIridescence& Iridescence)
{
	Reader.AllowOnly({"amount", "thickness", "indexOfRefraction"});
	Reader.Read("amount", Iridescence.Amount, 0.0f, 1.0f);
	Reader.Read("thickness", Iridescence.Thickness, 0.0f, MaxFilmNanometres);
	Reader.Read("indexOfRefraction", Iridescence.IndexOfRefraction, 1.0f, MaxIndexOfRefraction);
}

void ReadSubsurface(const FJsonReader& Reader, FMaterialSubsurface& Subsurface)
{
	Reader.AllowOnly({"amount", "color"});
	Reader.Read("amount", Subsurface.Amount, 0.0f, 1.0f);
	Reader.Read("color", Subsurface.Color);
}

void ReadTransmission(const FJsonReader& Reader, FMaterialTransmission& Transmission)
{
	Reader.AllowOnly({"amount", "indexOfRefraction"});
	Reader.Read("amount", Transmission.Amount, 0.0f, 1.0f);
	Reader.Read("indexOfRefraction", Transmission.IndexOfRefraction, 1.0f, MaxIndexOfRefraction);
}

void ReadGlitter(const FJsonReader& Reader, FMaterialGlitter& Glitter)
{
	Reader.AllowOnly({"density", "scale", "intensity", "spread"});
	Reader.Read("density", Glitter.Density, 0.0f, 1.0f);
	Reader.Read("scale", Glitter.Scale, 0.0f, MaxRepetitions);
	Reader.Read("intensity", Glitter.Intensity, 0.0f, MaxFactor);
	Reader.Read("spread", Glitter.Spread, 0.0f, 1.0f);
}

void ReadRelief(const FJsonReader& Reader, FMaterialRelief& Relief)
{
	Reader.AllowOnly({"pattern", "scale", "depth"});
	std::string Pattern = "None";
	Reader.Read("pattern", Pattern);
	if (Pattern == "Knit")
	{
		Relief.Pattern = EMaterialPattern::Knit;
	}
	else if (Pattern == "Grain")
	{
		Relief.Pattern = EMaterialPattern::Grain;
	}
	else if (Pattern == "Fibres")
	{
		Relief.Pattern = EMaterialPattern::Fibres;
	}
	else if (Pattern != "None")
	{
		Reader.GetFault().Report(Reader.PathOf("pattern"), "None, Knit, Grain or Fibres is needed");
	}
	Reader.Read("scale", Relief.Scale, 0.0f, MaxRepetitions);
	Reader.Read("depth", Relief.Depth, 0.0f, 1.0f);
}
} // namespace

void ReadMaterialLook(const FJsonReader& Reader, FMaterialLook& OutLook)
{
	Reader.AllowOnly({"sheen", "clearcoat", "anisotropy", "iridescence", "subsurface", "emission", "transmission",
		"glitter", "relief"});
	ReadSheen(Reader.Child("sheen"), OutLook.Sheen);
	ReadClearcoat(Reader.Child("clearcoat"), OutLook.Clearcoat);
	ReadAnisotropy(Reader.Child("anisotropy"), OutLook.Anisotropy);
	ReadIridescence(Reader.Child("iridescence"), OutLook.Iridescence);
	ReadSubsurface(Reader.Child("subsurface"), OutLook.Subsurface);
	const FJsonReader Emission = Reader.Child("emission");
	Emission.AllowOnly({"amount"});
	Emission.Read("amount", OutLook.Emission.Amount, 0.0f, MaxFactor);
	ReadTransmission(Reader.Child("transmission"), OutLook.Transmission);
	ReadGlitter(Reader.Child("glitter"), OutLook.Glitter);
	ReadRelief(Reader.Child("relief"), OutLook.Relief);
}
} // namespace Host
