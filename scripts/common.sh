# What the scripts share. It is sourced, and leaves the caller in the project's folder.
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# install_missing PACKAGE...: installs the Debian packages that aren't there yet.
install_missing() {
    if ! command -v apt-get >/dev/null; then
        echo "There is no apt-get here, so these are taken to be installed: $*"
        return
    fi
    local package missing=()
    for package in "$@"; do
        if [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) != installed ]]; then
            missing+=("$package")
        fi
    done
    if ((${#missing[@]} == 0)); then
        return
    fi
    heading "Installing ${missing[*]}"
    local as_root=()
    if ((EUID != 0)); then
        as_root=(sudo)
    fi
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

heading() {
    printf '\n== %s\n' "$*"
}
