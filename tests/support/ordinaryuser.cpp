#include "ordinaryuser.h"

#include <unistd.h>

namespace
{
constexpr uid_t nobody = 65534;
}

OrdinaryUser::OrdinaryUser() : m_WasAdministrator(geteuid() == 0)
{
    if (m_WasAdministrator && seteuid(nobody) != 0)
        m_WasAdministrator = false;
}

OrdinaryUser::~OrdinaryUser()
{
    // Back to the rights of the process, which always is allowed.
    if (m_WasAdministrator && seteuid(0) != 0)
        _exit(1);
}

bool OrdinaryUser::IsOrdinary() const
{
    return geteuid() != 0;
}
