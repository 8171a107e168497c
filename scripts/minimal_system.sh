# Functions for scripts that set up a minimal Debian 12 system in a folder and run commands in it
# with chroot. The scripts must be run as root.

DEBIAN_MIRROR=${DEBIAN_MIRROR:-http://deb.debian.org/debian}

# make_minimal_system FOLDER: creates the system unless the folder already exists.
make_minimal_system()
{
    [ "$(id -u)" -eq 0 ] || { say "chroot requires root"; return 1; }
    [ -e "$1/etc/debian_version" ] || debootstrap --variant=minbase bookworm "$1" "$DEBIAN_MIRROR"
}

# in_system FOLDER COMMAND...: runs the command in the system with a clean environment.
in_system()
{
    local folder=$1
    shift
    env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
        chroot "$folder" "$@"
}

# copy_source_tree FOLDER: copies the working-tree version of all files that git tracks. Preserves
# their modification times, so that incremental builds work.
copy_source_tree()
{
    rm -rf "$1"
    mkdir -p "$1"
    git ls-files -z | tar --create --null --files-from=- | tar --extract --directory "$1"
}
