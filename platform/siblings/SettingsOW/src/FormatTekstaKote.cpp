#include "FormatTekstaKote.h"

CString CFormatTekstaKote::Format(double dLength) const
{
    return strPrefiks + jedinica.Format(dLength) + strSufiks;
}

bool CFormatTekstaKote::operator==(const CFormatTekstaKote& other) const
{
    return nTekstKote == other.nTekstKote && jedinica == other.jedinica && strPrefiks == other.strPrefiks &&
           strSufiks == other.strSufiks;
}
