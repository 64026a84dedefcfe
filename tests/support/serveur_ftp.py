"""An FTP server on the loopback for the tests: serveur_ftp.py FOLDER USER PASSWORD MODE.

Writes its port on the first line of its output and ends with its standard input. MODE is what goes wrong:
"" nothing, "gone" the file goes before it is sent, "cut" the transfer breaks off, "closes" the connection ends
after each file, "keeps" no file can be deleted, "paths" the listing also names what lies elsewhere.
"""
import os
import sys
import threading

from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.handlers import DTPHandler, FTPHandler
from pyftpdlib.log import config_logging
from pyftpdlib.servers import FTPServer

folder, user, password, mode = sys.argv[1:5]
config_logging(level="ERROR")


class Transfer(DTPHandler):
    def push_with_producer(self, producer):
        if mode != "cut":
            return super().push_with_producer(producer)
        self.socket.send(producer.more()[:10])
        self.cmd_channel.close()


class Handler(FTPHandler):
    dtp_handler = Transfer
    use_sendfile = False

    def ftp_RETR(self, file):
        if mode == "gone":
            os.unlink(file)
        return super().ftp_RETR(file)

    def ftp_NLST(self, path):
        if mode != "paths":
            return super().ftp_NLST(path)
        self.push_dtp_data(b"../a.txt\r\n/etc/b.txt\r\n..\\c.txt\r\n.txt\r\n\xff.txt\r\nd.csv\r\nz.txt\r\n", cmd="NLST")
        return path

    def on_file_sent(self, file):
        if mode == "closes":
            self.close()


authorizer = DummyAuthorizer()
authorizer.add_user(user, password, folder, perm="elr" if mode == "keeps" else "elrd")
Handler.authorizer = authorizer
server = FTPServer(("127.0.0.1", 0), Handler)
print(server.address[1], flush=True)
threading.Thread(target=lambda: (sys.stdin.read(), os._exit(0)), daemon=True).start()
server.serve_forever()
