# A small Debian in build/x86 with 32-bit Wine. The host often cannot install it, because its i386 packages must
# have exactly the versions of the installed amd64 ones.

X86=$PWD/build/x86
X86_MOUNTS=("$X86/tmp/.X11-unix" "$X86/proc")
X86_EMULATOR=/proc/sys/fs/binfmt_misc/quorl-i386

# Sets wine_env so that Windows programs run in the folder. They belong into /quorl there.
start_x86() {
    if [ ! -f "$X86/ready" ]; then
        logged x86-folder make_x86
        echo "Created the 32-bit folder in $LOGGED_SECONDS s"
    fi
    at_exit "unmount_x86"
    as_root mount -t proc proc "$X86/proc"
    as_root mkdir -p "$X86/tmp/.X11-unix" "$X86/quorl"
    as_root mount --bind /tmp/.X11-unix "$X86/tmp/.X11-unix"
    runs_x86 || emulate_x86
    runs_x86 || die "This machine can neither run nor emulate 32-bit programs."
    wine_env=("${AS_ROOT[@]}" env HOME=/quorl XDG_CACHE_HOME=/quorl/cache chroot "$X86")
}

unmount_x86() {
    local folder
    [ ! -e "$X86_EMULATOR" ] || as_root sh -c "echo -1 >$X86_EMULATOR"
    for folder in "${X86_MOUNTS[@]}"; do
        ! mountpoint -q "$folder" || as_root umount "$folder" || as_root umount -l "$folder"
    done
}

make_x86() {
    local release mirror
    release=$(. /etc/os-release && echo "$VERSION_CODENAME")
    mirror=$(apt-get indextargets --format '$(REPO_URI) $(RELEASE)' 'Created-By: Packages' |
        awk -v release="$release" '$2 == release { print $1; exit }')
    [ -n "$mirror" ] || die "apt has no mirror for $release"
    as_root rm -rf "$X86"
    as_root debootstrap --variant=minbase "$release" "$X86" "$mirror"
    as_root sh -c "grep -l Acquire /etc/apt/apt.conf.d/* | xargs -r cp -t '$X86/etc/apt/apt.conf.d'"
    as_root sh -c "echo 'deb $mirror $release-backports main' >>'$X86/etc/apt/sources.list'"
    x86_install --release "$release" wine wine32:i386 fonts-wine fonts-liberation
    as_root touch "$X86/ready"
}

x86_install() {
    as_root chroot "$X86" sh -ec '
        release=$2; shift 2
        dpkg --add-architecture i386
        apt-get update
        DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends -t "$release" "$@"
    ' sh "$@"
}

runs_x86() { as_root chroot "$X86" /lib/i386-linux-gnu/ld-linux.so.2 --version >/dev/null 2>&1; }

# Some virtual machines cannot run 32-bit programs at all. Emulate the processor there, for each program.
emulate_x86() {
    local release magic mask
    release=$(. /etc/os-release && echo "$VERSION_CODENAME")
    if [ ! -x "$X86/usr/bin/qemu-i386-static" ]; then
        # From the backports: version 7 hangs in Wine's threads, version 10 does not.
        logged x86-emulator x86_install --release "$release-backports" qemu-user-static
        echo "Installed an emulator for 32-bit programs in $LOGGED_SECONDS s"
    fi
    if [ ! -e /proc/sys/fs/binfmt_misc/register ]; then
        as_root mount -t binfmt_misc binfmt_misc /proc/sys/fs/binfmt_misc
        X86_MOUNTS+=(/proc/sys/fs/binfmt_misc)
    fi
    [ ! -e "$X86_EMULATOR" ] || as_root sh -c "echo -1 >$X86_EMULATOR"
    magic='\x7fELF\x01\x01\x01\x00\x00\x00\x00\x00\x00\x00\x00\x00\x02\x00\x03\x00'
    mask='\xff\xff\xff\xff\xff\xfe\xfe\x00\xff\xff\xff\xff\xff\xff\xff\xff\xfe\xff\xff\xff'
    printf '%s' ":quorl-i386:M::$magic:$mask:$X86/usr/bin/qemu-i386-static:F" |
        as_root tee /proc/sys/fs/binfmt_misc/register >/dev/null
}
