#!/usr/bin/env python3
"""Holds the program to what it says of models in ZIP archives and gzip files.

Archives are made and read by Python's own modules: what the program answers of one has to be what it answers of the
model alone, what it writes has to be what they expect, and what is no archive of one model has to be refused in one line
and within little memory.

    archives.py PROGRAM MODEL
"""

import gzip
import io
import json
import os
import pathlib
import re
import struct
import subprocess
import sys
import tempfile
import zipfile

PROGRAM, SOURCE = map(os.path.abspath, sys.argv[1:])
TEXT = pathlib.Path(SOURCE).read_bytes()
MEBIBYTE = 1 << 20
LARGEST_RESULT = 64 * MEBIBYTE  # that a small archive may have
NOTHING_MUCH = 16 * MEBIBYTE  # of memory, where nothing is to be unpacked
# With sanitizers memory says nothing: what is freed is kept for a while.
VERSION = subprocess.run([PROGRAM, '--version', '--format', 'json'], capture_output=True, check=True).stdout
SANITIZED = json.loads(VERSION)['build']['sanitizers'] != ''

COMMANDS = [['report'], ['report', '--format', 'json'], ['check', '--format', 'json'], ['check', '--syntax'],
            ['validate', '--format', 'json'], ['classify', '--format', 'json'], ['classify', '--format', 'csv'],
            ['guid', 'check', '--format', 'json'], ['units'], ['units', '--format', 'json']]

faults = []


def expect(isGood, what):
    if not isGood:
        faults.append(what)


def zipped(members, method=zipfile.ZIP_DEFLATED):
    """A ZIP archive of (name, bytes)."""
    result = io.BytesIO()
    with zipfile.ZipFile(result, 'w', method) as archive:
        for name, data in members:
            archive.writestr(name, data)
    return result.getvalue()


def patched(archive, local, central, values):
    """An archive of one member with other values from an offset on of its local header and its entry in the directory."""
    changed, entry = bytearray(archive), archive.rindex(b'PK\x01\x02')
    changed[local:local + len(values)] = values
    changed[entry + central:entry + central + len(values)] = values
    return bytes(changed)


def write_too_much(member):
    """Piece by piece: a child counts as large as this process when it begins."""
    member.write(b'ISO-10303-21;')
    for _ in range(LARGEST_RESULT // MEBIBYTE):
        member.write(b' ' * MEBIBYTE)


def run(words, stdin=None):
    """Status, standard output and error, and the most bytes of memory."""
    with tempfile.TemporaryFile() as out, tempfile.TemporaryFile() as err:
        process = subprocess.Popen([PROGRAM, *words], stdin=stdin, stdout=out, stderr=err)
        _, status, usage = os.wait4(process.pid, 0)
        process.returncode = os.waitstatus_to_exitcode(status)
        out.seek(0)
        err.seek(0)
        answer = re.sub(r'(, |"seconds": )[0-9][0-9.e-]*( s\n|,?\n)', r'\1TIME\2', out.read().decode())
        return process.returncode, answer, err.read().decode(), usage.ru_maxrss * 1024


def put(name, data):
    pathlib.Path(name).write_bytes(data)


def answers_as_the_model_alone():
    put('house.ifc', TEXT)
    half = len(TEXT) // 2
    beside = [('__MACOSX/._house.ifc', b'x'), ('plans/', b''), ('plans/readme.txt', b'x'), ('plans/House.IFC', TEXT)]
    archives = [
        ('a.ifczip', zipped([('house.ifc', TEXT)]), 'house.ifc'),
        ('stored.zip', zipped([('house.ifc', TEXT)], zipfile.ZIP_STORED), 'house.ifc'),
        ('beside.zip', zipped(beside), 'plans/House.IFC'),
        ('umlaut.zip', zipped([('Häuser/größer.ifc', TEXT)]), 'Häuser/größer.ifc'),
        ('nameless.zip', zipped([('model', TEXT)]), 'model'),
        ('b.gz', gzip.compress(TEXT), None),
        ('two.gz', gzip.compress(TEXT[:half]) + gzip.compress(TEXT[half:]) + bytes(512), None),
        ('named-as-model.ifc', gzip.compress(TEXT), None),
        ('zip-as-model.ifc', zipped([('house.ifc', TEXT)]), 'house.ifc'),
    ]
    for words in COMMANDS:
        right = run([*words, 'house.ifc'])
        expect(right[0] in (0, 1) and right[1] != '', f'{words} of the model: {right}')
        for name, data, member in archives:
            put(name, data)
            status, out, err, _ = run([*words, name])
            expect((status, err) == (right[0], right[2]), f'{words} of {name}: {status} {err}')
            if member:
                # Text names the member, with the report on a line of its own; JSON has the path, to be opened by.
                lines = (f'  In archive      {member}\n', f'"member": "{member}"')
                expect('json' in words or 'csv' in words or f'{name}: {member}' in out or lines[0] in out,
                       f'{words} of {name} does not name {member}: {out[:200]}')
                out = out.replace(f'{name}: {member}', name).replace(lines[0], '').replace(lines[1], '"member": null')
            found, wanted = out.replace(name, 'house.ifc').split(), right[1].split()
            first = next((i for i, pair in enumerate(zip(found, wanted)) if pair[0] != pair[1]), -8)
            expect(found == wanted, f'{words} of {name}: {found[first:first + 8]} is not {wanted[first:first + 8]}')


def places_are_those_of_the_text():
    put('broken.zip', zipped([('broken.ifc', TEXT.replace(b'#45=', b'#45 '))]))
    status, out, _, _ = run(['check', 'broken.zip'])
    line = TEXT[:TEXT.index(b'#45=')].count(b'\n') + 1
    expect(status == 1 and f'broken.zip: broken.ifc:{line}:' in out, f'a problem in an archive: {status} {out}')


def refuses():
    house = zipped([('house.ifc', TEXT)])
    packed = gzip.compress(TEXT)
    size = struct.pack('<I', len(TEXT))
    assert patched(house, 22, 24, size) == house
    put('refused', b'no model')
    least = run(['report', 'refused'])[3]
    zip_bomb, gzip_bomb = io.BytesIO(), io.BytesIO()
    with zipfile.ZipFile(zip_bomb, 'w', zipfile.ZIP_DEFLATED) as archive, archive.open('house.ifc', 'w') as member:
        write_too_much(member)
    with gzip.GzipFile(fileobj=gzip_bomb, mode='w') as member:
        write_too_much(member)
    cases = [
        ('encrypted', patched(house, 6, 8, b'\1\0'), 'whose model is encrypted, expected one that opens without'),
        ('method', patched(house, 8, 10, struct.pack('<H', 97)), 'compressed by the method 97, which cannot be read'),
        ('claims less', patched(house, 22, 24, struct.pack('<I', len(TEXT) - 1)), 'damaged ZIP archive'),
        ('claims more', patched(house, 22, 24, struct.pack('<I', len(TEXT) + 1)), 'damaged ZIP archive'),
        ('claims 4 GB', patched(house, 22, 24, b'\xff\xff\xff\xf0'), 'unpacks to more than 64 MiB'),
        ('check sum', patched(house, 14, 16, b'\0\0\0\0'), 'damaged ZIP archive: CRC error'),
        ('several', zipped([(f'{n}.ifc', TEXT) for n in range(7)]),
         'with 7 models, expected one: "0.ifc", "1.ifc", "2.ifc", "3.ifc", "4.ifc" and 2 more'),
        ('no model', zipped([('a.txt', b'x'), ('b.txt', b'x')]),
         'that holds no .ifc file, expected one model in it; it has "a.txt", "b.txt"'),
        ('no member', zipped([]), 'that holds no file, expected one model in it'),
        ('folder', zipped([('plans/', b'')]), 'that holds no file'),
        ('gzip check sum', packed[:-8] + b'\0\0\0\0' + packed[-4:], 'damaged gzip file: incorrect data check'),
        ('gzip and text', packed + b'text', 'damaged gzip file: text stands behind its end'),
        ('gzip method', packed[:2] + b'\7' + packed[3:], 'damaged gzip file: unknown compression method'),
        ('zip bomb', zip_bomb.getvalue(), 'unpacks to more than 64 MiB'),
        ('gzip bomb', gzip_bomb.getvalue(), 'unpacks to more than 64 MiB'),
        ('zip in gzip', gzip.compress(house), 'expected an exchange structure'),
        ('XML', zipped([('house.ifcxml', b'<ifc/>')]), 'house.ifcxml: expected an exchange structure'),
        ('empty model', zipped([('house.ifc', b'')]), 'house.ifc: expected an exchange structure'),
    ]
    cases += [(f'cut {at}', house[:at], 'damaged ZIP archive: it ends too early') for at in (4, 40, len(house) // 2)]
    cases += [(f'cut {at}', house[:at], 'damaged ZIP archive') for at in (len(house) - 30, len(house) - 1)]
    cases += [(f'cut {at}', packed[:at], 'damaged gzip file: it ends too early') for at in (2, 9, 500, len(packed) - 1)]
    for name, data, reason in cases:
        put('refused', data)
        for words in (['report'], ['check']):
            status, out, err, memory = run([*words, 'refused'])
            expect(status == 3 and out == '' and err.count('\n') == 1 and err.startswith('velkor: refused: ')
                   and reason in err, f'{words}, {name}: {status} {out} {err}')
            most = least + NOTHING_MUCH + (3 * LARGEST_RESULT if name == 'gzip bomb' else 0)
            expect(memory < most or SANITIZED, f'{words}, {name}: took {memory >> 20} MiB, {least >> 20} MiB are usual')


def writes_what_others_read():
    there = set(os.listdir('.'))
    put('house.ifc', TEXT)
    expect(run(['convert', 'house.ifc', '-o', 'newer.ifc', '--to', '4'])[0] == 0, 'convert')
    newer = pathlib.Path('newer.ifc').read_bytes()
    for name, member in (('newer.ifczip', 'newer.ifc'), ('Newer.ifc.ZIP', 'Newer.ifc'), ('newer.ifc.gz', None)):
        put(name, b'the one before')
        for source in ('house.ifc', 'a.ifczip'):
            status, out, err, _ = run(['convert', source, '-o', name, '--to', '4'])
            expect(status == 0 and name in out and err == '', f'convert to {name}: {status} {out} {err}')
            data = pathlib.Path(name).read_bytes()
            expect(len(data) < len(newer) / 2, f'{name} is not compressed')
            if member is None:
                expect(gzip.decompress(data) == newer, f'{name} holds another text')
                expect(data[3:8] == bytes(5), f'{name} has a name or a time stamp')
                continue
            with zipfile.ZipFile(name) as archive:
                expect(archive.namelist() == [member] and archive.testzip() is None, f'{name}: {archive.namelist()}')
                entry = archive.infolist()[0]
                expect(archive.read(entry) == newer, f'{name} holds another text')
                expect(entry.date_time == (1980, 1, 1, 0, 0, 0), f'{name} has a time stamp: {entry.date_time}')
                expect(entry.external_attr >> 16 == 0o100644, f'{name}: mode {entry.external_attr:#x}')
    status, _, err, _ = run(['convert', 'house.ifc', '-o', 'missing/newer.ifczip'])
    expect(status == 3 and 'missing/newer.ifczip: cannot be written' in err, f'a folder that is missing: {status} {err}')
    made = set(os.listdir('.')) - there
    expect(made == {'newer.ifc', 'newer.ifczip', 'Newer.ifc.ZIP', 'newer.ifc.gz'}, f'files are left over: {made}')


def reads_standard_input():
    for name, data in (('a.gz', gzip.compress(TEXT)), ('a.zip', zipped([('house.ifc', TEXT)]))):
        put(name, data)
        for path, shown in (('-', 'standard input'), ('/dev/stdin', '/dev/stdin')):
            with open(name, 'rb') as stdin:
                status, out, err, _ = run(['report', path], stdin)
            expect(status == 0 and shown in out and '217 instances' in out, f'{name} as {path}: {status} {err}')


def main():
    with tempfile.TemporaryDirectory() as folder:
        os.chdir(folder)
        for test in (answers_as_the_model_alone, places_are_those_of_the_text, refuses, writes_what_others_read,
                     reads_standard_input):
            before = len(faults)
            test()
            print(f'{test.__name__}: {"failed" if len(faults) > before else "passed"}')
        os.chdir('/')
    print(*faults[:10], sep='\n')
    return 1 if faults else 0


if __name__ == '__main__':
    sys.exit(main())
