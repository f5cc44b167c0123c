"""The bytes of the program's files, as its papers tell them."""

import struct


def record(balls, word=0):
    """A column record: a word of 32 bits and six balls of 16, least byte first."""
    return struct.pack("<i6h", word, *balls)


def columns(content):
    """The columns of a list, each as (word, balls)."""
    return [(word, tuple(balls)) for word, *balls in struct.iter_unpack("<i6h", content)]


def bag_file(bag, bankos=()):
    """KARVENIS.DAT: the bag in words 1..50, the bankos from word 51 on."""
    words = [len(bag), *bag]
    words += [0] * (50 - len(words))
    if bankos:
        words += [len(bankos), *bankos]
    return struct.pack(f"<{len(words)}h", *words)
