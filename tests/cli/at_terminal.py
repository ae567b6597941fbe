"""Runs a program on a terminal of its own and types an answer at each question: at_terminal.py ANSWERS PROGRAM ARGUMENTS

The answers are separated by commas; an empty one ends the input. Prints what the terminal shows and ends as the program does.
"""
import os
import pty
import sys

answers = sys.argv[1].split(',')
pid, terminal = pty.fork()
if pid == 0:
    os.execv(sys.argv[2], sys.argv[2:])
shown = b''
asked = 0
while True:
    try:
        piece = os.read(terminal, 4096)
    except OSError:
        break
    if not piece:
        break
    shown += piece
    while shown.count(b'Type a number: ') > asked:
        answer = answers[asked] if asked < len(answers) else ''
        os.write(terminal, answer.encode() + b'\n' if answer else b'\x04')
        asked += 1
sys.stdout.buffer.write(shown.replace(b'\r\n', b'\n'))
sys.stdout.flush()
sys.exit(os.waitstatus_to_exitcode(os.waitpid(pid, 0)[1]))
