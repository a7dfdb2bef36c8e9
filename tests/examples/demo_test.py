"""Runs the demo's host program on made-up recordings, good and bad: demo_test.py [runner] program"""
import cmath
import math
import os
import random
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest
import wave
import xml.etree.ElementTree as xml

COMMAND = []
SPOKEN = "/usr/share/sounds/alsa/Front_Center.wav"
OUTPUTS = ["bandpass.wav", "resampled.wav", "spectrum.svg"]
PCM, FLOAT, EXTENSIBLE = 1, 3, 0xFFFE
PCM_GUID = bytes([1, 0, 0, 0, 0, 0, 0x10, 0, 0x80, 0, 0, 0xAA, 0, 0x38, 0x9B, 0x71])


def chunk(name, body, size=None):
    body_and_pad = body + b"\0" * (len(body) % 2)
    return name + struct.pack("<I", len(body) if size is None else size) + body_and_pad


def fmt(tag=PCM, channels=1, rate=48000, bits=16, frame=None, extra=b""):
    frame = channels * bits // 8 if frame is None else frame
    return chunk(b"fmt ", struct.pack("<HHIIHH", tag, channels, rate, rate * frame, frame, bits) + extra)


def riff(*chunks):
    return chunk(b"RIFF", b"WAVE" + b"".join(chunks))


def pcm(values):
    return struct.pack(f"<{len(values)}h", *values)


def tones(rate, count, *parts):
    """Sum of (frequency, amplitude), amplitude 1 being full scale."""
    turn = 2 * math.pi / rate
    return [round(32767 * sum(a * math.cos(turn * f * n) for f, a in parts)) for n in range(count)]


def component(samples, rate, frequency, margin):
    """Amplitude and phase of a frequency away from both ends: a Fourier sum under a Blackman-Harris window."""
    count = len(samples) - 2 * margin
    total = weights = 0
    for i in range(count):
        t = 2 * math.pi * (i + 0.5) / count
        w = 0.35875 - 0.48829 * math.cos(t) + 0.14128 * math.cos(2 * t) - 0.01168 * math.cos(3 * t)
        weights += w
        total += w * samples[margin + i] * cmath.exp(-2j * math.pi * frequency / rate * (margin + i))
    return 2 * total / weights / 32767


def decibels(value):
    return 20 * math.log10(max(abs(value), 1e-9))


def read(path):
    with wave.open(path) as w:
        values = struct.unpack(f"<{w.getnframes() * w.getnchannels()}h", w.readframes(w.getnframes()))
        header = w.getnchannels(), w.getsampwidth(), w.getframerate(), w.getnframes()
    return header, [list(values[c :: header[0]]) for c in range(header[0])]


class Case(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.mkdtemp(dir="/tmp")
        self.addCleanup(shutil.rmtree, self.folder)

    def path(self, *names):
        return os.path.join(self.folder, *names)

    def write(self, name, data):
        with open(self.path(name), "wb") as f:
            f.write(data)

    def run_demo(self, *arguments):
        """With relative names, from the folder where they are."""
        environment = dict(os.environ, LC_ALL="C.UTF-8")
        done = subprocess.run(COMMAND + list(arguments), cwd=self.folder, env=environment, capture_output=True,
                              encoding="utf-8", errors="replace", timeout=600, check=False)
        # Wine's own services report their faults to whoever started them.
        done.stderr = re.sub(r"^wine: .*\n", "", done.stderr, flags=re.M)
        return done

    def results(self, data, name="in.wav"):
        self.write(name, data)
        done = self.run_demo(name, "out")
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(done.stderr, "")
        self.assertEqual(sorted(os.listdir(self.path("out"))), OUTPUTS)
        return done.stdout, read(self.path("out", "bandpass.wav")), read(self.path("out", "resampled.wav"))


class GoodFiles(Case):
    def assertTone(self, samples, rate, frequency, amplitude):
        """In level and in phase: the filters' delays are taken out."""
        got = component(samples, rate, frequency, rate // 48)
        self.assertAlmostEqual(decibels(got), decibels(amplitude), delta=0.02, msg=f"{frequency} Hz")
        self.assertAlmostEqual(cmath.phase(got), 0, delta=0.005, msg=f"{frequency} Hz")

    def assertGone(self, samples, rate, frequency, amplitude):
        fall = decibels(amplitude) - decibels(component(samples, rate, frequency, rate // 48))
        self.assertGreater(fall, 78, f"{frequency} Hz")

    def test_bands_of_both_filters(self):
        heard, unheard = (450, 1000, 3250), (60, 150, 3550, 12000, 18000)
        signal = tones(48000, 12000, *[(f, 0.1) for f in heard + unheard])
        stdout, (header, (band,)), (new_header, (slow,)) = self.results(riff(fmt(), chunk(b"data", pcm(signal))))
        self.assertEqual(header, (1, 2, 48000, 12000))
        self.assertEqual(new_header, (1, 2, 32000, 8000))
        for f in heard:
            self.assertTone(band, 48000, f, 0.1)
        for f in unheard:
            self.assertGone(band, 48000, f, 0.1)
        for f in heard + (60, 150, 3550, 12000):
            self.assertTone(slow, 32000, f, 0.1)
        self.assertGone(slow, 32000, 32000 - 18000, 0.1)  # would be mirrored there
        self.assertLess(abs(component(band, 48000, 0, 1000)) * 32767, 0.2)  # rounded, not truncated: no offset
        self.assertNotIn("clipped", stdout)

    def test_stereo_in_an_extensible_format_between_other_chunks(self):
        left, right = tones(44100, 9001, (500, 0.5), (8000, 0.2)), tones(44100, 9001, (2000, 0.5))
        frames = pcm([x for pair in zip(left, right) for x in pair])
        extensible = fmt(EXTENSIBLE, 2, 44100, extra=struct.pack("<HHI", 22, 16, 3) + PCM_GUID)
        data = riff(chunk(b"LIST", b"odd"), extensible, chunk(b"fact", b"x" * 5), chunk(b"data", frames), b"trail")
        name = "Gr\u00fc\u00dfe & \u00d6l, " + 20 * "\u00e4\u20ac" + ".wav"
        stdout, (header, band), (new_header, slow) = self.results(data + b"after the end", name)
        self.assertEqual(header, (2, 2, 44100, 9001))
        self.assertEqual(new_header, (2, 2, 29400, 6001))
        for channels, rate in ((band, 44100), (slow, 29400)):
            self.assertTone(channels[0], rate, 500, 0.5)
            self.assertTone(channels[1], rate, 2000, 0.5)
            self.assertGone(channels[0], rate, 2000, 0.5)
            self.assertGone(channels[1], rate, 500, 0.5)
        self.assertGone(band[0], 44100, 8000, 0.2)
        self.assertTone(slow[0], 29400, 8000, 0.2)
        self.assertIn(name, stdout)
        svg = xml.parse(self.path("out", "spectrum.svg")).getroot()
        self.assertIn(name, svg[0].text)
        heading = next(t.text for t in svg.iter("{http://www.w3.org/2000/svg}text"))
        self.assertRegex(heading, f"^Spectrum of {name[:20]}\u2026{re.escape(name[-15:])} before and after")  # has room

    def test_rounds_and_clips(self):
        """A square wave at full scale overshoots once its upper harmonics are gone."""
        square = [32767 if n // 24 % 2 == 0 else -32768 for n in range(4800)]
        stdout, (_, (band,)), (_, (slow,)) = self.results(riff(fmt(), chunk(b"data", pcm(square))))
        self.assertGreater(int(re.search(r"clipped to 16 bits: (\d+)", stdout)[1]), 100)
        for samples, period in ((band, 48), (slow, 32)):
            self.assertEqual((min(samples), max(samples)), (-32768, 32767))
            for n in range(25 * period + 4, 75 * period, period):  # inside the half periods: no sample wrapped around
                self.assertGreater(min(samples[n : n + period // 2 - 8]), 20000)
                self.assertLess(max(samples[n + period // 2 : n + period - 8]), -20000)

    def test_shortest_and_slowest(self):
        for rate, count in ((48000, 1), (5, 7), (1000000000, 2)):
            with self.subTest(rate=rate, count=count):
                data = riff(fmt(rate=rate), chunk(b"data", pcm([1000] * count)))
                _, (header, _), (new_header, _) = self.results(data)
                self.assertEqual(header, (1, 2, rate, count))
                self.assertEqual(new_header, (1, 2, round(rate * 2 / 3), -(-count * 2 // 3)))
                xml.parse(self.path("out", "spectrum.svg"))

    @unittest.skipUnless(os.path.exists(SPOKEN), "alsa-utils is not installed")
    def test_speech_and_what_is_told_about_it(self):
        with open(SPOKEN, "rb") as f:
            data = f.read()
        stdout, (header, (band,)), _ = self.results(data)
        self.assertEqual(header[2], 48000)
        self.assertEqual(stdout.count("bit for bit"), 2)
        level = {m[1]: (float(m[2]), float(m[3])) for m in re.finditer(r"level (.*): (.*) dB before, (.*) dB", stdout)}
        self.assertAlmostEqual(*level["in the band"], delta=0.1)
        for where in ("below it", "above it"):
            self.assertLess(level[where][1], level[where][0] - 50)
        rows = re.findall(r"^ +(px|w7|s8|p8|g9|h9)  \S+ +(.*)$", stdout, re.M)
        self.assertEqual([variant for variant, _ in rows], ["px", "w7", "s8", "p8", "g9", "h9"])
        self.assertRegex(rows[0][1], r"^\d+\.\d +\d+\.\d +\d+\.\d +the reference$")
        for variant, row in rows[1:]:
            self.assertRegex(row, r"^\d+\.\d +\d+\.\d +\d+\.\d +same bits as px$|^skipped: ", variant)

        svg = xml.parse(self.path("out", "spectrum.svg")).getroot()
        space = "{http://www.w3.org/2000/svg}"
        self.assertEqual(svg.tag, space + "svg")
        texts = [t.text for t in svg.iter(space + "text")]
        for wanted in ("Frequency (Hz)", "1k", "-20", "recording", "after the filter"):
            self.assertIn(wanted, texts)
        curves = {}
        for line in svg.iter(space + "polyline"):
            points = [tuple(map(float, p.split(","))) for p in line.get("points").split()]
            self.assertTrue(all(a[0] < b[0] for a, b in zip(points, points[1:])))
            curves[line.get("class")] = dict(points)
        self.assertEqual(sorted(curves), ["after", "before", "filter"])
        # Downwards is softer: the curves agree in the middle of the band and part at the right end.
        x = {t.text: float(t.get("x")) for t in svg.iter(space + "text") if t.text in ("1k", "10k")}
        self.assertAlmostEqual(curves["before"][round(x["1k"])], curves["after"][round(x["1k"])], delta=1)
        self.assertGreater(curves["after"][round(x["10k"])], curves["before"][round(x["10k"])] + 50)


class BadFiles(Case):
    def assertRefused(self, done, reason):
        self.assertEqual(done.returncode, 1)
        self.assertRegex(done.stderr, r"\Ademo: [^\n]*" + reason + r"[^\n]*\n\Z")
        left = [os.path.join(at, f) for at, _, files in os.walk(self.folder) for f in files]
        self.assertEqual([f for f in left if not f.endswith("in.wav")], [])

    def test_each_fault_is_named(self):
        sound = chunk(b"data", pcm([100, -100] * 600))
        good = riff(fmt(), sound)
        faults = [
            ("empty file", b""),
            ("truncated WAV file: 2443 of 2444 bytes", good[:-1]),
            ("truncated WAV file", good[:30]),
            ("truncated WAV file", good[:3]),
            ("not a WAV file", b"Ogg!" + good[4:]),
            ("not a WAV file", good[:8] + b"AVI " + good[12:]),
            ("longer than the file", riff(fmt(), chunk(b"data", b"\0" * 100, 102))),
            ("4294967295 bytes is longer", riff(chunk(b"LIST", b"", 0xFFFFFFFF), fmt(), sound)),
            ("1201 bytes of samples", riff(fmt(), chunk(b"data", b"\0" * 1201))),
            ("1202 bytes of samples", riff(fmt(channels=2), chunk(b"data", b"\0" * 1202))),
            ("no samples", riff(fmt(), chunk(b"data", b""))),
            ("no samples", riff(fmt(), chunk(b"LIST", b"text"))),
            ("no format before", riff(sound, fmt())),
            ("format chunk of 14 bytes", riff(chunk(b"fmt ", b"\1\0\1\0" + b"\0" * 10), sound)),
            ("not PCM \\(format 3\\)", riff(fmt(FLOAT, bits=32), sound)),
            ("not PCM", riff(fmt(EXTENSIBLE, extra=struct.pack("<HHI", 22, 16, 0) + b"\3" + PCM_GUID[1:]), sound)),
            ("12 valid bits", riff(fmt(EXTENSIBLE, extra=struct.pack("<HHI", 22, 12, 0) + PCM_GUID), sound)),
            ("8 bits", riff(fmt(bits=8), sound)),
            ("24 bits", riff(fmt(bits=24), sound)),
            ("3 channels", riff(fmt(channels=3), sound)),
            ("0 channels", riff(fmt(channels=0), sound)),
            ("sample rate of 0 Hz", riff(fmt(rate=0), sound)),
            ("frames of 4 bytes", riff(fmt(frame=4), sound)),
        ]
        for reason, data in faults:
            with self.subTest(reason=reason):
                self.write("in.wav", data)
                self.assertRefused(self.run_demo("in.wav", "out"), "in.wav: .*" + reason)

    def test_what_is_no_file(self):
        self.assertRefused(self.run_demo("missing.wav", "out"), "missing.wav: no such file")
        os.mkdir(self.path("folder"))
        self.assertRefused(self.run_demo("folder", "out"), "folder: not a regular file")

    def test_random_damage_never_ends_in_a_crash(self):
        """Any header bytes give either results or one line."""
        good = riff(fmt(), chunk(b"LIST", b"odd"), chunk(b"data", pcm([5, -5] * 50)))
        chance = random.Random(1)
        for _ in range(12):
            damaged = bytearray(good)
            for _ in range(chance.randrange(1, 4)):
                damaged[chance.randrange(56)] = chance.choice((0, 1, 0x7F, 0x80, 0xFF))
            self.write("in.wav", damaged)
            done = self.run_demo("in.wav", "out")
            if done.returncode == 0:
                shutil.rmtree(self.path("out"))
            else:
                self.assertRefused(done, "in.wav: ")

    def test_all_outputs_or_none(self):
        self.write("in.wav", riff(fmt(), chunk(b"data", pcm([100, -100] * 600))))
        os.makedirs(self.path("out", "spectrum.svg"))
        self.assertRefused(self.run_demo("in.wav", "out"), "out/spectrum.svg is a folder")
        self.write("a.in.wav", b"")
        self.assertRefused(self.run_demo("in.wav", "a.in.wav"), "")
        self.assertEqual(os.path.getsize(self.path("a.in.wav")), 0)

    def test_usage(self):
        for arguments in ((), ("in.wav",), ("a", "b", "c")):
            done = self.run_demo(*arguments)
            self.assertEqual((done.returncode, done.stderr), (2, "usage: demo recording.wav folder\n"))


if __name__ == "__main__":
    COMMAND = sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
