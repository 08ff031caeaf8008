#pragma once

/// While it lives, the process has no rights beyond those of an ordinary user, so that file
/// permissions count also in a test that an administrator runs.
class OrdinaryUser
{
public:
    OrdinaryUser();
    ~OrdinaryUser();
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    /// False where it could not give up its rights.
    bool IsOrdinary() const;

private:
    bool m_WasAdministrator;
};
